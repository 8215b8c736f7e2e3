// The track of a bar.
import QtQuick
import Vantle.Kit

Plate {
    property real cornerRadius: DarkUI.radiusBar

    implicitHeight: DarkUI.barStatHeight
    radius: Math.min(cornerRadius, height / 2)
    color: DarkUI.barTrough
}
