// The field of a skill's name with its length limit. Focused when the editor opens.
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
            field.text = field.editor.name; // the length limit has replaced the binding
            field.input.forceActiveFocus(Qt.OtherFocusReason);
            field.selectAll();
        }
    }
}
