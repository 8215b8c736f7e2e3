// Makes a group of controls a single stop of the Tab key. Arrow keys move between them, Home and
// End go to the first and the last. The stops are its children, or those of `list`.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

FocusScope {
    id: group

    property Item list: group
    property int current: 0 // the stop that Tab reaches
    property bool wraps: false
    signal moved(int index) // by an arrow key

    function stops() {
        const found = [];
        for (let i = 0; i < list.children.length; ++i) {
            const control = list.children[i] as KitControl;
            if (control && control.visible && control.enabled)
                found.push(control);
        }
        return found;
    }
    // Keeps exactly one stop in the Tab order. Adds the new one first: the focused item cannot
    // leave the order.
    function refresh(): void {
        const all = stops();
        if (all.length === 0)
            return; // not created yet
        current = Math.max(0, Math.min(current, all.length - 1));
        all[current].activeFocusOnTab = true;
        all[current].focus = true;
        for (let i = 0; i < all.length; ++i) {
            if (i !== current)
                all[i].activeFocusOnTab = false;
        }
    }
    function goTo(index: int): void {
        const all = stops();
        const goal = wraps ? (index + all.length) % all.length
                           : Math.max(0, Math.min(index, all.length - 1));
        if (goal === current || !all[goal])
            return;
        all[goal].focusByKeyboard();
        current = goal;
        refresh();
        moved(goal);
    }

    Accessible.role: Accessible.Grouping

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Right:
        case Qt.Key_Down:
            goTo(current + 1);
            break;
        case Qt.Key_Left:
        case Qt.Key_Up:
            goTo(current - 1);
            break;
        case Qt.Key_Home:
            goTo(0);
            break;
        case Qt.Key_End:
            goTo(stops().length - 1);
            break;
        default:
            event.accepted = false;
        }
    }
    // Hidden items are no stops: a hidden group finds its stops when it is shown.
    onVisibleChanged: refresh()
    Component.onCompleted: refresh()
}
