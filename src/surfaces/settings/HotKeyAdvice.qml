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

    CommandWell {
        width: parent.width
        visible: advice.offersCommand
        command: advice.model.gaps.command
        advice: advice.model.gaps.hotKeyAdvice
        copied: advice.model.gaps.commandCopied
        onCopyWanted: advice.model.gaps.copyCommand()
    }

    DarkSecondaryButton {
        visible: text !== ""
        text: advice.model.gaps.hotKeyAction
        role: DarkUI.captionMedium
        Accessible.description: advice.model.gaps.hotKeyAdvice
        onClicked: advice.model.gaps.pressHotKeyAction()
    }
}
