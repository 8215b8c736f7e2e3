// One line of text in a well.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

FocusScope {
    id: field

    property alias text: input.text
    property string name // what is read out
    property string placeholder
    property string help: placeholder // read out after the name
    property int limit: 0 // user-perceived characters; 0 for any number
    property bool clearable: false // a button empties it
    property string clearName: qsTr("Clear")
    property string icon // at the left; empty for none
    property bool wrong: false
    property real minHeight: DarkUI.fieldHeight
    property real padding: DarkUI.fieldPadding
    property color accent: DarkUI.accent
    property TypeRole role: DarkUI.body
    property bool focused: input.activeFocus // shows the edge of a field with the focus
    property alias input: input
    signal accepted
    signal edited // by the person
    signal keyboardWanted // pressed: a window that takes no focus by itself must ask for it now

    function selectAll(): void {
        input.selectAll();
    }
    function clear(): void {
        input.clear();
        field.edited();
        input.forceActiveFocus(Qt.OtherFocusReason);
    }
    // Cuts what is too long as soon as it is there. The caret stays, or goes to the end.
    function keepLimit(): void {
        if (limit <= 0)
            return;
        const kept = KitText.first(input.text, limit);
        if (kept === input.text)
            return;
        const caret = input.cursorPosition;
        input.text = kept;
        input.cursorPosition = Math.min(caret, kept.length);
    }

    implicitWidth: 200
    implicitHeight: well.implicitHeight
    opacity: enabled ? 1 : DarkUI.disabledOpacity

    DarkFieldWell {
        id: well
        anchors.fill: parent
        focused: field.focused
        wrong: field.wrong
        minHeight: field.minHeight
        accent: field.accent

        KitIcon {
            id: leading
            x: DarkUI.space10
            anchors.verticalCenter: parent.verticalCenter
            visible: field.icon !== ""
            width: DarkUI.iconMedium
            height: DarkUI.iconMedium
            name: field.icon
            color: DarkUI.iconQuiet
        }

        TextInput {
            id: input
            anchors.left: parent.left
            anchors.leftMargin: leading.visible ? leading.x + leading.width + DarkUI.space8
                                                : field.padding
            anchors.right: parent.right
            anchors.rightMargin: clearing.visible ? DarkUI.fieldHeight : field.padding
            anchors.verticalCenter: parent.verticalCenter
            focus: true
            activeFocusOnTab: true
            clip: true
            font: field.role.font
            color: DarkUI.textPrimary
            selectionColor: Tint.alpha(DarkUI.accent, DarkUI.dangerEdgeOpacity)
            selectedTextColor: DarkUI.textPrimary
            selectByMouse: true
            renderType: placeholderText.renderType
            cursorDelegate: DarkCaret {
                shown: input.cursorVisible
            }
            onTextChanged: {
                field.keepLimit();
                reading.follow(input.text);
            }
            onTextEdited: field.edited()
            onAccepted: field.accepted()

            Accessible.role: Accessible.EditableText
            Accessible.name: field.name
            Accessible.description: field.help
            Accessible.editable: true
            Accessible.focusable: true

            FieldReading {
                id: reading
                name: field.name
                description: field.help
                cursorPosition: input.cursorPosition
                selectionStart: input.selectionStart
                selectionEnd: input.selectionEnd
                onFocusWanted: field.keyboardWanted()
                onSelectionWanted: (start, end) => input.select(start, end)
                onCaretWanted: offset => input.cursorPosition = offset
                onRemovalWanted: (start, end) => input.remove(start, end)
                onInsertionWanted: (offset, text) => input.insert(offset, text)
                onSightWanted: offset => input.ensureVisible(offset)
                onCaretRectWanted: offset => caretRect = input.positionToRectangle(offset)
            }

            // The text takes the press: the handler of the well does not hear of it.
            TapHandler {
                gesturePolicy: TapHandler.DragThreshold
                grabPermissions: PointerHandler.TakeOverForbidden
                onPressedChanged: if (pressed) field.keyboardWanted()
            }
        }

        DarkText {
            id: placeholderText
            anchors.left: input.left
            anchors.right: input.right
            anchors.verticalCenter: parent.verticalCenter
            visible: input.text === "" && input.preeditText === ""
            text: field.placeholder
            role: field.role
            color: DarkUI.textTertiary
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        DarkIconButton {
            id: clearing
            anchors.right: parent.right
            anchors.rightMargin: DarkUI.space6
            anchors.verticalCenter: parent.verticalCenter
            visible: field.clearable && input.text !== ""
            name: field.clearName
            icon: "clear-circle"
            iconColor: DarkUI.iconQuiet
            onClicked: field.clear()
        }
    }

    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }

    TapHandler {
        // The well as a whole, without taking the press from the text.
        gesturePolicy: TapHandler.DragThreshold
        grabPermissions: PointerHandler.TakeOverForbidden
        onPressedChanged: if (pressed) {
            field.keyboardWanted();
            input.forceActiveFocus(Qt.MouseFocusReason);
        }
    }
}
