// A number that follows its target by a spring; immediately with reduced motion.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

QtObject {
    id: follower

    required property SpringToken spring
    property real target: 0
    property real value: 0
    property int delay: 0 // ms before it starts
    property bool ready: false
    readonly property bool running: run.running

    property real start: 0
    property real elapsed: 0 // ms

    // Animates from that value to the target.
    function startFrom(from: real): void {
        run.stop();
        value = Motion.reduced ? target : from;
        start = value;
        if (value !== target)
            run.start();
    }

    onTargetChanged: if (ready) startFrom(value)
    readonly property bool reduced: Motion.reduced
    onReducedChanged: if (reduced && running) {
        run.stop();
        value = target;
    }
    onElapsedChanged: if (run.running)
        value = start + (target - start) * Motion.springAt(spring.stiffness, spring.damping,
                                                           elapsed)
    Component.onCompleted: {
        value = target;
        ready = true;
    }

    readonly property SequentialAnimation run: SequentialAnimation {
        onFinished: follower.value = follower.target

        PauseAnimation {
            duration: follower.delay
        }
        NumberAnimation {
            target: follower
            property: "elapsed"
            from: 0
            to: Motion.springTime(follower.spring.stiffness, follower.spring.damping)
            duration: to
        }
    }
}
