// A note with time, skill and duration; buttons to copy and edit appear under the pointer.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Notes

KitControl {
    id: row

    required property LogView log
    required property real timeWidth // of the column, equal in all rows
    readonly property real lineGap: 3
    readonly property real buttonsRoom: 2 * DarkUI.iconButtonSize + DarkUI.space12
    signal leftBehind(int step) // an arrow key moves to a row before or after
    signal editorEntered // the editor has the focus

    required property string sessionId
    required property string note
    required property string timeText
    required property string skillName
    required property color skillColor
    required property string durationText
    required property bool isManual
    required property string spoken

    readonly property bool editing: log.editingId === sessionId
    readonly property bool copied: log.copiedId === sessionId
    readonly property bool ringed: keyboardFocus && !editing
    readonly property bool active: (hover.hovered || keyboardFocus || buttons.activeFocus)
                                   && !editing
    readonly property real textX: DarkUI.space28 + timeWidth

    function edit(): void {
        log.beginEdit(sessionId);
        takeKeyboard();
    }
    function takeKeyboard(): void {
        const made = editor.item as NoteEditor;
        if (made)
            made.takeKeyboard();
    }
    function showEditor(): void {
        if (editing) {
            if (!editor.item)
                editor.setSource("NoteEditor.qml", { "log": log });
            return;
        }
        const hadFocus = editor.activeFocus;
        editor.source = "";
        if (hadFocus)
            row.focusByKeyboard(); // a key ended the edit
    }

    implicitHeight: content.height + 2 * DarkUI.space8

    Accessible.role: Accessible.ListItem
    Accessible.name: spoken
    Accessible.focusable: true

    onEditingChanged: showEditor()
    onActiveChanged: {
        if (active && !buttons.item)
            buttons.setSource("NoteButtons.qml", { "row": row });
    }
    Component.onCompleted: showEditor()

    // A pooled item keeps its focus, so keys would go to an invisible field and then to another
    // note. The list merely stops drawing it; a screen reader would still read a filtered note.
    ListView.onPooled: {
        editor.source = "";
        visible = false;
    }
    ListView.onReused: {
        visible = true;
        showEditor();
    }

    Keys.onReturnPressed: edit()
    Keys.onEnterPressed: edit()
    Keys.onUpPressed: leftBehind(-1)
    Keys.onDownPressed: leftBehind(1)
    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.Copy);
        if (event.accepted)
            row.log.copyNote(row.sessionId);
    }

    HoverHandler {
        id: hover
    }

    Plate {
        anchors.fill: parent
        anchors.leftMargin: DarkUI.space16
        anchors.rightMargin: DarkUI.space16
        radius: DarkUI.radiusBanner
        color: row.active || row.editing ? DarkUI.rowHover : DarkUI.clear

        FocusRing {
            shown: row.ringed
            controlRadius: DarkUI.radiusBanner
        }
    }

    DarkText {
        x: DarkUI.space28
        y: content.y + (row.editing ? DarkUI.space6 : 0)
        text: row.timeText
        role: DarkUI.body
        color: DarkUI.textTertiary
        Accessible.ignored: true
    }

    Column {
        id: content
        x: row.textX
        y: DarkUI.space8
        width: parent.width - x - DarkUI.space28
        spacing: row.lineGap

        DarkText {
            visible: !row.editing
            width: parent.width
            text: row.note
            horizontalAlignment: undefined // by script
            role: DarkUI.note
            wrapMode: Text.Wrap
            Accessible.ignored: true
            balanced: false // as the user's own words come
            firstLineRoom: row.buttonsRoom // so that no line moves under the pointer
        }

        Loader {
            id: editor
            visible: row.editing
            x: -DarkUI.space12
            width: parent.width + DarkUI.space12
            onActiveFocusChanged: if (activeFocus) row.editorEntered()
        }

        NoteMeta {
            width: parent.width
            skillName: row.skillName
            skillColor: row.skillColor
            durationText: row.durationText
            isManual: row.isManual
        }
    }

    // Created on first hover or focus, then kept and made transparent: hiding a button would move
    // keyboard focus away from it.
    Loader {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space28
        y: DarkUI.space8
        visible: !row.editing && !row.copied
        opacity: row.active ? 1 : 0
        onLoaded: {
            const made = item as NoteButtons;
            made.copyWanted.connect(() => row.log.copyNote(row.sessionId));
            made.editWanted.connect(() => row.edit());
        }
    }

    DarkText {
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space28
        y: DarkUI.space8
        visible: row.copied
        text: qsTr("Copied")
        role: DarkUI.caption
        color: DarkUI.textSecondary
    }
}
