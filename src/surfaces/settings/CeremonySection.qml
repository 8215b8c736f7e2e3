// The settings of the ceremony.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Settings

SettingsSection {
    id: section

    required property SettingsView model

    title: qsTr("CEREMONY")

    SettingsCard {
        width: parent.width

        PreferenceRows {
            width: parent.width
            model: section.model.rows(PreferenceRowModel.Ceremony)
        }
    }
}
