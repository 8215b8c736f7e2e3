// The menu of a row. A choice that means "none" is dimmed.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

DarkMenuPicker {
    id: picker

    property bool isSkill: false
    property color skillColor: DarkUI.clear

    textLeft: isSkill ? DarkUI.space10 + DarkUI.chipDotSize + DarkUI.space8 : DarkUI.space10

    FlatDot {
        x: DarkUI.space10
        anchors.verticalCenter: parent.verticalCenter
        visible: picker.isSkill
        width: DarkUI.chipDotSize
        height: DarkUI.chipDotSize
        color: picker.skillColor
    }
}
