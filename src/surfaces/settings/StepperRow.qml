// A preference that is a number, with a step down and one up.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

SettingsRow {
    id: row

    required property PreferenceRowModel preference

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
            exhausted: row.preference.isLowest
            onAction: row.preference.step(-1)
        },
        StepChip {
            label: "+"
            name: row.preference.moreName
            exhausted: row.preference.isHighest
            onAction: row.preference.step(1)
        }
    ]

    SettingsGap {
        width: parent.width
        text: row.preference.gap
    }
}
