// Shows a DarkHelp once the pointer has rested on a control.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: watch

    property Item control
    property string text
    property bool pointed // whether the pointer rests on the control

    onPointedChanged: shown.active = false

    Timer {
        running: watch.pointed && watch.text !== ""
        interval: DarkUI.helpDelay
        onTriggered: shown.active = true
    }

    Loader {
        id: shown
        active: false
        source: "DarkHelp.qml"
        onLoaded: {
            const help = item as DarkHelp;
            help.text = watch.text;
            help.control = watch.control;
        }
    }
}
