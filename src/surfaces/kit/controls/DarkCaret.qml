// The caret of a text field. Blinks at the desktop's rate; steady with reduced motion.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Rectangle {
    id: caret

    property bool shown: false
    property bool lit: true

    width: DarkUI.caretWidth
    color: DarkUI.caret
    visible: shown && lit
    // Moving it restarts the blink.
    onXChanged: {
        lit = true;
        blink.restart();
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
