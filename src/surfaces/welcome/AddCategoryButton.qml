// The button that adds a mode.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: button

    implicitWidth: DarkUI.space14 + DarkUI.space12 + DarkUI.space12 + label.implicitWidth
                   + DarkUI.space14
    implicitHeight: DarkUI.buttonHeight + DarkUI.space8
    name: qsTr("Add your own")

    KitIcon {
        x: DarkUI.space14
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.iconSmall
        height: DarkUI.iconSmall
        name: "plus"
        color: DarkUI.iconPrimary
    }

    DarkText {
        id: label
        x: DarkUI.space14 + DarkUI.space12 + DarkUI.space12
        anchors.verticalCenter: parent.verticalCenter
        text: button.name
        role: DarkUI.bodyMedium
        color: button.hovered || button.pressed || button.ringed ? DarkUI.textPrimary
               : DarkUI.textSecondary
        Accessible.ignored: true
    }

    FocusRing {
        shown: button.ringed
        controlRadius: DarkUI.radiusButton
    }
}
