// The field in place of a note that is being edited.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Notes

Column {
    id: editor

    required property LogView log

    spacing: DarkUI.space6
    bottomPadding: DarkUI.space2

    // Not by being made: a row that scrolls or is searched into sight with its draft must not take
    // the keyboard from where it is.
    function takeKeyboard(): void {
        field.forceActiveFocus(Qt.OtherFocusReason);
    }

    Component.onCompleted: {
        field.text = editor.log.draft;
        field.input.cursorPosition = field.text.length;
    }

    DarkTextField {
        id: field
        width: parent.width
        minHeight: DarkUI.editorFieldHeight
        role: DarkUI.note
        name: qsTr("Note")
        placeholder: qsTr("What moved forward")
        help: qsTr("Return saves, Escape cancels")
        onEdited: editor.log.draft = field.text
        onAccepted: editor.log.commitEdit()
        Keys.onEscapePressed: editor.log.cancelEdit()
    }

    DarkText {
        x: DarkUI.space12
        text: qsTr("Return saves. Esc cancels.")
        role: DarkUI.small
        color: DarkUI.textTertiary
    }
}
