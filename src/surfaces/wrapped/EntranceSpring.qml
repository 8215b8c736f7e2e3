// The progress of an entrance by a spring: 0 before the start, 1 at rest, above 1 during overshoot.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

QtObject {
    id: entrance

    required property SpringToken spring
    required property bool animated // otherwise at rest from the start
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
