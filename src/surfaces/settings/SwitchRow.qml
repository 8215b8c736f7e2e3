// A preference that is on or off.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

ToggleRow {
    id: row

    required property PreferenceRowModel preference

    title: preference.title
    caption: preference.caption
    spoken: preference.note === "" ? caption : caption + " " + preference.note
    checked: preference.on
    onToggled: checked => preference.on = checked

    SettingsCaption {
        width: parent.width - DarkUI.space20
        visible: text !== ""
        text: row.preference.note
    }

    SettingsGap {
        width: parent.width
        text: row.preference.gap
    }

    Column {
        // Stays visible until the focus has moved on, and shows what the press did.
        visible: row.preference.remedy !== "" || remedy.activeFocus
        topPadding: DarkUI.space8

        DarkSecondaryButton {
            id: remedy
            text: row.preference.remedy !== "" ? row.preference.remedy : qsTr("Done")
            role: DarkUI.captionMedium
            Accessible.description: row.preference.gap
            onClicked: row.preference.applyRemedy()

            Announcer {
                text: remedy.activeFocus && row.preference.remedy === "" ? remedy.text : ""
            }
        }
    }
}
