// A mode's name and colour, for a new one or one that is renamed.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Skills
import Vantle.Welcome

FocusScope {
    id: row

    required property WelcomeView model
    readonly property SkillEditor editor: model.category

    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: row.editor.title

    Keys.onEscapePressed: row.editor.close()

    Column {
        id: column
        width: parent.width
        spacing: DarkUI.space10

        Item {
            width: parent.width
            height: label.height + DarkUI.space6 + field.height

            DarkText {
                id: label
                text: qsTr("Category")
                role: DarkUI.captionMedium
                color: DarkUI.textSecondary
                Accessible.ignored: true // the field has it for its name
            }

            DarkTextField {
                id: field
                y: label.height + DarkUI.space6
                anchors.left: parent.left
                anchors.right: buttons.left
                anchors.rightMargin: DarkUI.space8
                focus: true
                minHeight: DarkUI.editorFieldHeight
                name: label.text
                placeholder: qsTr("e.g. Investors, Support")
                text: row.editor.name
                onEdited: {
                    row.editor.name = field.text;
                    if (field.text !== row.editor.name)
                        field.text = row.editor.name;
                }
                onAccepted: row.model.commitCategory()
            }

            Row {
                id: buttons
                anchors.right: parent.right
                anchors.verticalCenter: field.verticalCenter
                spacing: DarkUI.space8

                DarkSecondaryButton {
                    text: row.editor.cancelText
                    onClicked: row.editor.close()
                }
                DarkPrimaryButton {
                    text: row.editor.confirmText
                    accent: row.editor.color
                    enabled: row.model.canCommitCategory
                    onClicked: row.model.commitCategory()
                }
            }
        }

        SwatchRow {
            width: parent.width
            colors: row.editor.palette
            names: row.editor.colorNames
            currentIndex: row.editor.colorIndex
            onActivated: index => row.editor.chooseColor(index)
        }
    }

    Connections {
        target: row.editor
        function onOpened(): void {
            field.text = row.editor.name;
            field.input.forceActiveFocus(Qt.OtherFocusReason);
            field.selectAll();
        }
    }
}
