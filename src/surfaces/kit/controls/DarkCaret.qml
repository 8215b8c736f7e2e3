// The caret of a text field. Blinks at the desktop's rate; steady with reduced motion.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: caret

    property bool shown: false
    property bool lit: true
    property bool ahead: false // of an empty field: left of the placeholder's first letter

    width: DarkUI.caretWidth
    visible: shown && lit
    // Moving it restarts the blink.
    onXChanged: {
        lit = true;
        blink.restart();
    }

    Rectangle {
        x: caret.ahead ? -DarkUI.space2 : 0
        width: parent.width
        height: parent.height
        color: DarkUI.caret
    }

    Timer {
        id: blink
        interval: Math.max(Application.styleHints.cursorFlashTime / 2, 1)
        repeat: true
        running: caret.shown && !Motion.reduced && Application.styleHints.cursorFlashTime > 1
        onTriggered: caret.lit = !caret.lit
        onRunningChanged: caret.lit = true
    }
}
