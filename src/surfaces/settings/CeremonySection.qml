// What plays at both ends of a session.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Settings

SettingsSection {
    id: section

    required property SettingsView model

    title: qsTr("CEREMONY")

    SettingsCard {
        width: parent.width

        ToggleRow {
            width: parent.width
            first: true
            title: section.model.title(SettingsView.RippleRow)
            caption: section.model.caption(SettingsView.RippleRow)
            checked: section.model.rippleOn
            onToggled: checked => section.model.rippleOn = checked

            SettingsGap {
                width: parent.width
                text: section.model.gaps.ceremonyAdvice
            }
        }

        ToggleRow {
            width: parent.width
            title: section.model.title(SettingsView.BlackoutRow)
            caption: section.model.caption(SettingsView.BlackoutRow)
            checked: section.model.ceremonyBlackout
            onToggled: checked => section.model.ceremonyBlackout = checked
        }
    }
}
