// Shows that the keyboard's focus is on a control; stands as a child of it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Rectangle {
    property bool shown: false
    property real controlRadius: 0

    anchors.fill: parent
    anchors.margins: -(DarkUI.focusGap + DarkUI.focusWidth)
    visible: shown
    radius: controlRadius + DarkUI.focusRadiusGain
    color: "transparent"
    border.width: DarkUI.focusWidth
    border.color: DarkUI.focusRing
}
