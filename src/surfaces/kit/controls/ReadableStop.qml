// What is read and not pressed, as a stop of the keyboard: with others in an ArrowGroup.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitControl {
    id: stop

    required property string name // what is read out
    property real radius: DarkUI.radiusMenuRow

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.focusable: true

    FocusRing {
        shown: stop.keyboardFocus
        controlRadius: stop.radius
    }
}
