// The editor of a mode's name and colour, for a new or a renamed one.
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
    Accessible.name: editor.adding ? qsTr("Name your mode") : qsTr("Rename mode")

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
                Accessible.ignored: true // the field has it as its name
            }

            SkillNameField {
                id: field
                y: label.height + DarkUI.space6
                anchors.left: parent.left
                anchors.right: buttons.left
                anchors.rightMargin: DarkUI.space8
                focus: true
                minHeight: DarkUI.editorFieldHeight
                name: label.text
                placeholder: qsTr("e.g. Investors, Support")
                editor: row.editor
                onAccepted: row.model.commitCategory()
            }

            SkillEditorButtons {
                id: buttons
                anchors.right: parent.right
                anchors.verticalCenter: field.verticalCenter
                editor: row.editor
                onConfirmed: row.model.commitCategory()
            }
        }

        SkillSwatches {
            width: parent.width
            editor: row.editor
        }
    }
}
