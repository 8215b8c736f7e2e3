// The card that edits a mode's name and colour.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Skills

Plate {
    id: card

    required property SkillEditor editor
    readonly property int inner: width - 2 * DarkUI.space14

    implicitHeight: column.implicitHeight + 2 * DarkUI.space14
    radius: DarkUI.radiusCard
    color: DarkUI.cardFill
    edge: DarkUI.hairline

    Accessible.role: Accessible.Grouping
    Accessible.name: title.text

    Column {
        id: column
        x: DarkUI.space14
        y: DarkUI.space14
        width: card.inner
        spacing: DarkUI.space12

        Column {
            width: parent.width
            spacing: DarkUI.space2

            DarkText {
                id: title
                text: card.editor.adding ? qsTr("Name your mode") : qsTr("Rename mode")
                role: DarkUI.bodyStrong
            }
            DarkText {
                width: parent.width
                text: qsTr("Choose a short name you will recognize at a glance.")
                role: DarkUI.caption
                color: DarkUI.textSecondary
                wrapMode: Text.Wrap
            }
        }

        Column {
            width: parent.width
            spacing: DarkUI.space6

            Item {
                width: parent.width
                height: label.height

                DarkText {
                    id: label
                    text: qsTr("Mode name")
                    role: DarkUI.small
                    color: DarkUI.textSecondary
                }
                DarkText {
                    anchors.right: parent.right
                    text: card.editor.counter
                    role: DarkUI.small
                    color: DarkUI.textTertiary
                }
            }

            SkillNameField {
                width: parent.width
                minHeight: DarkUI.editorFieldHeight
                name: card.editor.adding ? qsTr("New mode name") : label.text
                editor: card.editor
                onAccepted: card.editor.commit()
            }
        }

        SkillSwatches {
            width: parent.width
            editor: card.editor
        }

        SkillEditorButtons {
            anchors.right: parent.right
            editor: card.editor
            onConfirmed: card.editor.commit()
        }
    }
}
