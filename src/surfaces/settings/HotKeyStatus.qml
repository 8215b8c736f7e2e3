// The state of the shortcut.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

Row {
    id: status

    required property SettingsView model

    spacing: DarkUI.space8

    KitIcon {
        anchors.verticalCenter: parent.verticalCenter
        visible: status.model.isHotKeyActive
        width: DarkUI.iconMedium
        height: DarkUI.iconMedium
        name: "check-circle"
        color: DarkUI.good
    }

    DarkText {
        id: label
        anchors.verticalCenter: parent.verticalCenter
        text: status.model.hotKeyText
        role: DarkUI.captionMedium
        color: status.model.isHotKeyActive ? DarkUI.textPrimary : DarkUI.dangerText
        Accessible.description: KitText.spoken(status.model.hotKeyFailure)

        HoverHandler {
            id: hover
        }

        HoverHelp {
            control: label
            text: status.model.hotKeyFailure
            pointed: hover.hovered
        }
    }
}
