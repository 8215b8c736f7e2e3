// The settings of the desktop integration, duration style and data.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

SettingsSection {
    id: section

    required property SettingsView model

    title: qsTr("GENERAL")

    function cancelErase(): void {
        data.cancelErase();
    }

    SettingsCard {
        width: parent.width

        ToggleRow {
            width: parent.width
            first: true
            title: section.model.title(SettingsView.LoginRow)
            caption: section.model.caption(SettingsView.LoginRow)
            checked: section.model.launchAtLogin
            onToggled: checked => section.model.launchAtLogin = checked
        }

        SettingsRow {
            width: parent.width
            title: section.model.title(SettingsView.HotKeyRow)
            caption: section.model.caption(SettingsView.HotKeyRow)

            control: HotKeyStatus {
                model: section.model
            }

            HotKeyAdvice {
                width: parent.width
                model: section.model
            }
        }

        SettingsRow {
            width: parent.width
            visible: section.model.gaps.trayAdvice !== ""
            title: section.model.title(SettingsView.TrayRow)
            caption: section.model.gaps.trayAdvice
        }

        SettingsRow {
            id: duration
            width: parent.width
            title: section.model.title(SettingsView.DurationRow)
            caption: section.model.caption(SettingsView.DurationRow)

            control: DarkMenuPicker {
                title: duration.title
                help: section.model.help(SettingsView.DurationRow)
                options: section.model.durationChoices
                currentIndex: section.model.durationChoice
                onActivated: index => section.model.durationChoice = index
            }
        }

        SettingsRow {
            width: parent.width
            title: section.model.title(SettingsView.WelcomeRow)
            caption: section.model.welcomeCaption

            control: DarkSecondaryButton {
                text: section.model.action(SettingsView.WelcomeRow)
                role: DarkUI.captionMedium
                Accessible.description: section.model.welcomeCaption
                onClicked: section.model.replayWelcome()
            }
        }
    }

    DataCard {
        id: data
        width: parent.width
        model: section.model
    }
}
