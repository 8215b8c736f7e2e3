// A number with buttons for a step down and up.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

SettingsRow {
    id: row

    required property PreferenceRowModel preference

    function step(steps: int): void {
        preference.step(steps);
        announcer.say(preference.title + ", " + preference.valueText);
    }

    title: preference.title
    caption: preference.caption

    control: [
        DarkText {
            anchors.verticalCenter: parent.verticalCenter
            rightPadding: DarkUI.space4
            text: row.preference.valueText
            role: DarkUI.bodyStrong
        },
        StepChip {
            label: "−"
            name: row.preference.lessName
            Accessible.description: row.preference.valueText
            exhausted: row.preference.isLowest
            onAction: row.step(-1)
        },
        StepChip {
            label: "+"
            name: row.preference.moreName
            Accessible.description: row.preference.valueText
            exhausted: row.preference.isHighest
            onAction: row.step(1)
        }
    ]

    Announcer {
        id: announcer
    }

    SettingsGap {
        width: parent.width
        text: row.preference.gap
    }
}
