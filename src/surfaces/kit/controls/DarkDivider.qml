// A hairline.
import QtQuick
import Vantle.Kit

Rectangle {
    implicitHeight: DarkUI.hairlineWidth
    implicitWidth: DarkUI.hairlineWidth
    color: DarkUI.hairline
}
