// A skill: its dot and its name.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Row {
    id: label

    required property string skillName
    required property color skillColor
    property TypeRole role: DarkUI.caption
    property real gap: DarkUI.space8

    spacing: gap

    Plate {
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.chipDotSize
        height: DarkUI.chipDotSize
        radius: DarkUI.chipDotSize / 2
        color: label.skillColor
    }

    DarkText {
        text: label.skillName
        role: label.role
        color: DarkUI.textSecondary
    }
}
