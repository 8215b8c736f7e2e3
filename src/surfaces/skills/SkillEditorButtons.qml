// The buttons of an edit: cancel, or commit in the skill's colour.
import QtQuick
import Vantle.Kit
import Vantle.Skills

Row {
    id: buttons

    required property SkillEditor editor
    signal confirmed

    spacing: DarkUI.space8

    DarkSecondaryButton {
        text: qsTr("Cancel")
        onClicked: buttons.editor.close()
    }
    DarkPrimaryButton {
        text: buttons.editor.adding ? qsTr("Add mode") : qsTr("Save")
        accent: buttons.editor.color
        enabled: buttons.editor.canCommit
        onClicked: buttons.confirmed()
    }
}
