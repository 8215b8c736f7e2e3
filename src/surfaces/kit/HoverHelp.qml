// Brings up a DarkHelp once the pointer has rested on a control.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: watch

    required property Item control
    required property string text
    required property bool pointed // the pointer rests on the control

    onPointedChanged: shown.active = false

    Timer {
        running: watch.pointed && watch.text !== ""
        interval: DarkUI.helpDelay
        onTriggered: shown.active = true
    }

    Loader {
        id: shown
        active: false
        sourceComponent: DarkHelp {
            control: watch.control
            text: watch.text
        }
    }
}
