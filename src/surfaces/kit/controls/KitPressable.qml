// The base of controls that are pressed: pointer, keys, focus and name. They draw themselves from
// `hovered`, `pressed`, `ringed` and `enabled`.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitControl {
    id: pressable

    property string name // for screen readers
    property string help // the tooltip; empty for none
    property bool hovered: hover.hovered && enabled
    property bool pressed: tap.pressed || spaceHeld
    property bool ringed: keyboardFocus
    property alias cursorShape: hover.cursorShape
    readonly property int stateTime: pressed ? DarkUI.pressTime : DarkUI.hoverTime
    property bool spaceHeld: false
    signal clicked

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.description: help
    Accessible.focusable: true
    Accessible.pressed: pressed
    Accessible.onPressAction: if (pressable.enabled) pressable.clicked()

    Keys.onPressed: event => {
        const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        event.accepted = isReturn || event.key === Qt.Key_Space;
        if (!event.accepted || event.isAutoRepeat)
            return;
        if (isReturn)
            pressable.clicked();
        else
            pressable.spaceHeld = true;
    }
    Keys.onReleased: event => {
        if (event.key !== Qt.Key_Space || event.isAutoRepeat || !pressable.spaceHeld)
            return;
        event.accepted = true;
        pressable.spaceHeld = false;
        pressable.clicked();
    }
    onActiveFocusChanged: spaceHeld = false

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onPressedChanged: if (pressed) pressable.forgetKeyboard()
        onTapped: pressable.clicked()
    }

    Loader {
        active: pressable.help !== ""
        source: "HoverHelp.qml"
        onLoaded: {
            const watch = item as HoverHelp;
            watch.control = pressable;
            watch.text = Qt.binding(() => pressable.help);
            watch.pointed = Qt.binding(() => pressable.hovered && !pressable.pressed);
        }
    }
}
