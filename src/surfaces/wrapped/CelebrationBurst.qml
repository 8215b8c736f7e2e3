// A burst over a page, after a delay. Freed a second after its end.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: celebration

    property list<color> colors
    property int delay: 0 // ms
    property bool animated: false
    readonly property bool pending: animated && !Motion.reduced && !over
    property bool over: false
    readonly property real reach: 320
    readonly property real rise: 100

    function end(): void {
        over = true;
    }

    implicitWidth: reach
    implicitHeight: rise

    DotBurst {
        id: burst
        anchors.fill: parent
        visible: celebration.pending
        colors: celebration.pending ? celebration.colors : []
    }

    SequentialAnimation {
        running: celebration.pending

        PauseAnimation {
            duration: celebration.delay
        }
        ScriptAction {
            script: burst.play()
        }
        PauseAnimation {
            duration: DarkUI.burstTime + DarkUI.burstHold
        }
        ScriptAction {
            script: celebration.end()
        }
    }
}
