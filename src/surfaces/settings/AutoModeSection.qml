// What the application in front may do to the clock.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

SettingsSection {
    id: section

    required property SettingsView model

    title: qsTr("AUTO MODE")

    SettingsCard {
        width: parent.width

        ToggleRow {
            width: parent.width
            first: true
            title: section.model.title(SettingsView.AutoModeRow)
            caption: section.model.caption(SettingsView.AutoModeRow)
            checked: section.model.autoModeOn
            onToggled: checked => section.model.autoModeOn = checked

            SettingsCaption {
                width: parent.width - DarkUI.space20
                text: section.model.caption(SettingsView.AutoModePrivacyRow)
            }

            SettingsGap {
                width: parent.width
                text: section.model.gaps.autoModeAdvice
            }
        }

        ToggleRow {
            width: parent.width
            title: section.model.title(SettingsView.AutoStartRow)
            caption: section.model.caption(SettingsView.AutoStartRow)
            checked: section.model.autoStartOn
            onToggled: checked => section.model.autoStartOn = checked

            SettingsGap {
                width: parent.width
                text: section.model.gaps.autoStartAdvice
            }
        }
    }

    AppsCard {
        width: parent.width
        model: section.model
    }
}
