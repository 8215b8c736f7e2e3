// The animation of the capsule's frame: by a spring when it opens, linear when it closes. An
// interrupted animation reverses from its current state.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

QtObject {
    id: morph

    required property rect target
    required property bool opening
    property bool still: false // jumps without animation

    readonly property real x: mix(from.x, to.x)
    readonly property real y: mix(from.y, to.y)
    readonly property real width: mix(from.width, to.width)
    readonly property real height: mix(from.height, to.height)
    readonly property bool running: run.running

    property rect from
    property rect to
    property bool springs: false
    property real elapsed: 0 // ms
    property int time: 0 // ms
    property bool ready: false
    readonly property real way: {
        if (time <= 0 || elapsed >= time)
            return 1;
        if (springs)
            return Motion.springAt(DarkUI.springCapsule.stiffness, DarkUI.springCapsule.damping,
                                   elapsed);
        const rest = 1 - elapsed / time;
        return 1 - rest * rest * rest;
    }

    function mix(a: real, b: real): real {
        return a + (b - a) * way;
    }
    function go(): void {
        const now = Qt.rect(x, y, width, height);
        springs = opening;
        run.stop();
        time = 0;
        from = now;
        to = target;
        if (still || Motion.reduced)
            return;
        elapsed = 0;
        time = springs ? Motion.springTime(DarkUI.springCapsule.stiffness,
                                           DarkUI.springCapsule.damping)
                       : DarkUI.capsuleCloseTime;
        run.start();
    }

    onTargetChanged: if (ready)
        go()
    readonly property bool reduced: Motion.reduced
    onReducedChanged: if (reduced && running) {
        run.stop();
        time = 0; // arrived
    }
    Component.onCompleted: {
        from = target;
        to = target;
        ready = true;
    }

    readonly property NumberAnimation run: NumberAnimation {
        target: morph
        property: "elapsed"
        from: 0
        to: morph.time
        duration: morph.time
    }
}
