// Advice on binding an own key to start and stop sessions.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

Column {
    id: advice

    required property SettingsView model

    readonly property bool offersCommand: model.gaps.hotKeyAdvice !== ""

    visible: offersCommand || model.gaps.hotKeyAction !== ""
    topPadding: DarkUI.space8
    spacing: DarkUI.space8

    SettingsCaption {
        width: parent.width
        visible: advice.offersCommand
        text: advice.model.gaps.hotKeyAdvice
        color: DarkUI.textSecondary
    }

    SettingsCaption {
        width: parent.width
        visible: advice.offersCommand
        text: advice.model.gaps.command
        color: DarkUI.textPrimary
        wrapMode: Text.Wrap
    }

    Row {
        spacing: DarkUI.space12

        DarkSecondaryButton {
            visible: text !== ""
            text: advice.model.gaps.hotKeyAction
            role: DarkUI.captionMedium
            Accessible.description: advice.model.gaps.hotKeyAdvice
            onClicked: advice.model.gaps.pressHotKeyAction()
        }

        DarkSecondaryButton {
            id: copy
            visible: advice.offersCommand
            text: qsTr("Copy the command")
            role: DarkUI.captionMedium
            Accessible.description: advice.model.gaps.hotKeyAdvice + " " + advice.model.gaps.command
            onClicked: advice.model.gaps.copyCommand()
        }

        SettingsFeedback {
            anchors.verticalCenter: copy.verticalCenter
            text: advice.model.gaps.commandCopied ? qsTr("Copied") : ""
        }
    }
}
