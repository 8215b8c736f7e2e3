// The settings of auto mode.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Settings

SettingsSection {
    id: section

    required property SettingsView model

    title: qsTr("AUTO MODE")

    SettingsCard {
        width: parent.width

        PreferenceRows {
            width: parent.width
            model: section.model.rows(PreferenceRowModel.AutoMode)
        }
    }

    AppsCard {
        width: parent.width
        model: section.model
    }
}
