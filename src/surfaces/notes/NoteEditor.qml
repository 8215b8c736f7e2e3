// The editor that replaces a note.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Notes

Column {
    id: editor

    required property LogView log

    spacing: DarkUI.space6
    bottomPadding: DarkUI.space2

    // Not on creation: a row with a draft that scrolls into view must not take the focus.
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
