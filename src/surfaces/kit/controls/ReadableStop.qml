// A keyboard stop for text that is read, not pressed; used in an ArrowGroup.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitControl {
    id: stop

    required property string name // for screen readers
    property real radius: DarkUI.radiusMenuRow

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.focusable: true

    FocusRing {
        shown: stop.keyboardFocus
        controlRadius: stop.radius
    }
}
