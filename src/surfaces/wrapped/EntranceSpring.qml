// How far something that comes in by a spring has come: 0 before it sets out, 1 at its place.
// Beyond 1 for a while where the spring swings over.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

QtObject {
    id: entrance

    required property SpringToken spring
    required property bool animated // else it is in place from the start
    property int delay: 0 // ms
    property bool arrived: false
    property real elapsed: 0 // ms
    readonly property real way: Motion.reduced || !animated || arrived ? 1
                                : Motion.springAt(spring.stiffness, spring.damping, elapsed)

    readonly property SequentialAnimation run: SequentialAnimation {
        running: entrance.animated && !Motion.reduced
        onFinished: entrance.arrived = true

        PauseAnimation {
            duration: entrance.delay
        }
        NumberAnimation {
            target: entrance
            property: "elapsed"
            from: 0
            to: Motion.springTime(entrance.spring.stiffness, entrance.spring.damping)
            duration: to
        }
    }
}
