// The chip after the modes that opens the editor for a new one.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: chip

    required property bool active // whether the editor is open for a new mode

    implicitWidth: label.x + label.implicitWidth + DarkUI.space12
    implicitHeight: DarkUI.largeChipHeight
    name: qsTr("New Mode")

    GlassChipBackground {
        id: ground
        anchors.fill: parent
        hovering: chip.hovered || chip.active
        pressed: chip.pressed
    }

    KitIcon {
        id: sign
        x: DarkUI.space8
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.iconSmall
        height: DarkUI.iconSmall
        name: "plus"
        color: label.color
    }

    DarkText {
        id: label
        readonly property real gap: 5
        anchors.left: sign.right
        anchors.leftMargin: gap
        anchors.verticalCenter: parent.verticalCenter
        text: chip.name
        role: DarkUI.captionMedium
        color: chip.hovered || chip.active || chip.ringed ? DarkUI.textPrimary
               : DarkUI.textSecondary
        Accessible.ignored: true
    }

    FocusRing {
        shown: chip.ringed
        controlRadius: ground.radius
    }
}
