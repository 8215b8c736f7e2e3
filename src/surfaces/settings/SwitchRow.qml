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
}
