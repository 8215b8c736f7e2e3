// The settings of pause, daily goal and shortcut programs.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

SettingsSection {
    id: section

    required property SettingsView model
    readonly property real aboveChoices: 7

    title: qsTr("FOCUS")

    SettingsCard {
        width: parent.width

        PreferenceRows {
            width: parent.width
            model: section.model.rows(PreferenceRowModel.Focus)
        }

        ToggleRow {
            id: link
            width: parent.width
            title: section.model.title(SettingsView.FocusLinkRow)
            caption: section.model.caption(SettingsView.FocusLinkRow)
            checked: section.model.focusLinked
            onToggled: checked => section.model.focusLinked = checked

            // Without a shortcut in the list the chosen ones can still be cleared.
            Column {
                width: parent.width
                visible: section.model.focusLinked
                         && (!section.model.hasNoShortcuts || section.model.startChoice > 0
                             || section.model.stopChoice > 0)
                topPadding: section.aboveChoices
                spacing: DarkUI.space8

                ShortcutChoice {
                    width: parent.width
                    title: section.model.title(SettingsView.StartShortcutRow)
                    options: section.model.startChoices
                    chosen: section.model.startChoice
                    onActivated: choice => section.model.chooseStartShortcut(choice)
                }

                ShortcutChoice {
                    width: parent.width
                    title: section.model.title(SettingsView.StopShortcutRow)
                    options: section.model.stopChoices
                    chosen: section.model.stopChoice
                    onActivated: choice => section.model.chooseStopShortcut(choice)
                }
            }

            Column {
                width: parent.width
                visible: section.model.focusLinked
                topPadding: section.aboveChoices
                spacing: DarkUI.space8

                SettingsCaption {
                    id: none
                    width: parent.width
                    visible: section.model.hasNoShortcuts
                    text: qsTr("No Shortcuts found yet. Make one, then flip this off and on.")
                    color: DarkUI.textSecondary
                }

                DarkSecondaryButton {
                    anchors.right: parent.right
                    text: section.model.action(SettingsView.FocusLinkRow)
                    role: DarkUI.captionMedium
                    Accessible.description: section.model.hasNoShortcuts ? none.text : ""
                    onClicked: section.model.openShortcuts()
                }
            }

            SettingsFeedback {
                width: parent.width
                topPadding: role.leading + DarkUI.space6
                failed: true
                text: section.model.focusLinked ? section.model.shortcutsFailure : ""
            }
        }
    }
}
