// The field of a skill's name, cut where it is too long. It takes the keyboard when the editor
// opens.
import QtQuick
import Vantle.Kit
import Vantle.Skills

DarkTextField {
    id: field

    required property SkillEditor editor

    limit: editor.maxNameLength
    placeholder: qsTr("e.g. Writing")
    text: editor.name
    onTextChanged: editor.name = text

    Connections {
        target: field.editor
        function onOpened(): void {
            if (!field.visible)
                return;
            field.text = field.editor.name; // cutting has ended the binding
            field.input.forceActiveFocus(Qt.OtherFocusReason);
            field.selectAll();
        }
    }
}
