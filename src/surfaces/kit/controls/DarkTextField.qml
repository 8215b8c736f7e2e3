// A one-line text field.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

FocusScope {
    id: field

    property alias text: input.text
    property string name // for screen readers
    property string placeholder
    property string help: placeholder // for screen readers, after the name
    property int limit: 0 // in user-perceived characters; 0 for none
    property bool clearable: false // shows a button that clears it
    property string clearName: qsTr("Clear")
    property string icon // at the left; empty for none
    property bool wrong: false
    property real minHeight: DarkUI.fieldHeight
    property real padding: DarkUI.fieldPadding
    property color accent: DarkUI.accent
    property TypeRole role: DarkUI.body
    property bool focused: input.activeFocus // shows the focused edge
    property alias input: input
    // px; shows all of the placeholder
    readonly property real placeholderWidth: input.anchors.leftMargin + input.leftPadding
                                             + Math.ceil(placeholderText.implicitWidth)
                                             + input.anchors.rightMargin
    signal accepted
    signal edited // by the user
    signal keyboardWanted // pressed: a window that does not accept focus must request it now

    function selectAll(): void {
        input.selectAll();
    }
    function clear(): void {
        input.clear();
        field.edited();
        input.forceActiveFocus(Qt.OtherFocusReason);
    }
    // Cuts text that is too long immediately. Keeps the caret, or moves it to the end.
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
            // Room for the caret of an empty field, since the input clips.
            leftPadding: DarkUI.space2
            anchors.leftMargin: (leading.visible ? leading.x + leading.width + DarkUI.space8
                                                 : field.padding) - leftPadding
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
                ahead: placeholderText.visible
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

            // The text item takes the press, so the frame's handler does not get it.
            TapHandler {
                gesturePolicy: TapHandler.DragThreshold
                grabPermissions: PointerHandler.TakeOverForbidden
                onPressedChanged: if (pressed) field.keyboardWanted()
            }
        }

        DarkText {
            id: placeholderText
            anchors.left: input.left
            anchors.leftMargin: input.leftPadding
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
        // Observes the whole field without taking the press from the text.
        gesturePolicy: TapHandler.DragThreshold
        grabPermissions: PointerHandler.TakeOverForbidden
        onPressedChanged: if (pressed) {
            field.keyboardWanted();
            input.forceActiveFocus(Qt.MouseFocusReason);
        }
    }
}
