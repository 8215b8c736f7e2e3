// A number with a slider; the title includes the value.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

Item {
    id: row

    required property PreferenceRowModel preference
    property bool first: false // without a hairline above

    implicitHeight: content.y + content.height + DarkUI.space14

    DarkDivider {
        x: DarkUI.space16
        width: content.width
        visible: !row.first
    }

    Announcer {
        id: announcer
    }

    Column {
        id: content
        x: DarkUI.space16
        y: DarkUI.space14 + (row.first ? 0 : DarkUI.hairlineWidth)
        width: row.width - 2 * x

        DarkText {
            text: row.preference.title
            role: DarkUI.bodyMedium
        }

        Item {
            width: parent.width
            height: DarkUI.space6 + slider.height

            DarkSlider {
                id: slider
                y: DarkUI.space6
                width: parent.width
                name: row.preference.title
                minimumValue: row.preference.least
                maximumValue: row.preference.most
                stepSize: row.preference.stepSize
                value: row.preference.value
                valueText: row.preference.caption
                // Screen readers know only the bare number of its value.
                onMoved: value => {
                    row.preference.value = value;
                    announcer.say(row.preference.title);
                }
            }
        }

        SettingsCaption {
            topPadding: role.leading + DarkUI.space2
            width: parent.width - DarkUI.space20
            text: row.preference.caption
        }

        SettingsGap {
            width: parent.width
            text: row.preference.gap
        }
    }
}
