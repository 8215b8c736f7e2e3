// The recently used applications and their rules.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

SettingsCard {
    id: card

    required property SettingsView model

    Item {
        width: parent.width
        implicitHeight: column.height + (rows.count > 0 ? DarkUI.space6 : DarkUI.space14)

        Column {
            id: column
            x: DarkUI.space16
            topPadding: DarkUI.space14
            width: parent.width - 2 * x

            DarkText {
                text: qsTr("Your apps")
                role: DarkUI.bodyMedium
                Accessible.role: Accessible.Heading
                Accessible.description: card.model.appsNote
            }

            SettingsCaption {
                topPadding: role.leading + DarkUI.space4
                bottomPadding: -role.leading + (rows.count > 0 ? DarkUI.space8 : 0)
                width: parent.width
                text: card.model.appsNote
            }

            Repeater {
                id: rows
                model: card.model.apps

                AppRow {
                    width: column.width
                    settings: card.model
                }
            }

            SettingsFeedback {
                bottomPadding: -role.leading + DarkUI.space6
                width: parent.width
                failed: true
                text: card.model.appsFailure
            }
        }
    }
}
