// The user's data: export and erase.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

SettingsCard {
    id: card

    required property SettingsView model

    function cancelErase(): void {
        erase.cancelled();
    }

    Item {
        width: parent.width
        implicitHeight: column.y + column.height + DarkUI.space14

        Column {
            id: column
            x: DarkUI.space16
            y: DarkUI.space14
            width: parent.width - 2 * x
            spacing: DarkUI.space6

            SettingsCaption {
                width: parent.width
                text: card.model.caption(SettingsView.ExportRow)
            }

            Item {
                width: parent.width
                height: reveal.height + DarkUI.space6

                DarkSecondaryButton {
                    id: reveal
                    anchors.right: parent.right
                    anchors.bottom: parent.bottom
                    text: card.model.action(SettingsView.ExportRow)
                    help: card.model.help(SettingsView.ExportRow)
                    role: DarkUI.captionMedium
                    Accessible.description: card.model.caption(SettingsView.ExportRow)
                    onClicked: card.model.exportData()
                }
            }

            SettingsFeedback {
                width: parent.width
                failed: card.model.exportFailed
                text: card.model.exportFeedback
            }
        }
    }

    EraseRow {
        id: erase
        width: parent.width
        model: card.model
    }
}
