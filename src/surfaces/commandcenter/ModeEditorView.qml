// The card in which a mode gets its name and its colour.
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
    Accessible.name: editor.title

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
                text: card.editor.title
                role: DarkUI.bodyStrong
            }
            DarkText {
                width: parent.width
                text: card.editor.help
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
                    text: card.editor.fieldLabel
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

            DarkTextField {
                id: field
                width: parent.width
                minHeight: DarkUI.editorFieldHeight
                name: card.editor.fieldName
                placeholder: card.editor.placeholder
                text: card.editor.name
                onEdited: {
                    card.editor.name = text;
                    text = card.editor.name;
                }
                onAccepted: card.editor.commit()
            }
        }

        SwatchRow {
            width: parent.width
            colors: card.editor.palette
            names: card.editor.colorNames
            currentIndex: card.editor.colorIndex
            onActivated: index => card.editor.chooseColor(index)
        }

        Row {
            anchors.right: parent.right
            spacing: DarkUI.space8

            DarkSecondaryButton {
                text: card.editor.cancelText
                onClicked: card.editor.close()
            }
            DarkPrimaryButton {
                text: card.editor.confirmText
                accent: card.editor.color
                enabled: card.editor.canCommit
                onClicked: card.editor.commit()
            }
        }
    }

    Connections {
        target: card.editor
        function onOpened(): void {
            field.text = card.editor.name;
            field.input.forceActiveFocus(Qt.OtherFocusReason);
            field.selectAll();
        }
    }
}
