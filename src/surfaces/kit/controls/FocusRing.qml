// The focus ring around its parent control.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    property bool shown: false
    property real controlRadius: 0

    anchors.fill: parent
    anchors.margins: -(DarkUI.focusGap + DarkUI.focusWidth)
    visible: shown
    radius: controlRadius + DarkUI.focusRadiusGain
    edgeWidth: DarkUI.focusWidth
    edge: DarkUI.focusRing
}
