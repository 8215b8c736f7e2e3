// Dots that fly from a centre on play(), and fade. Not with reduced motion.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Wrapped

BurstDots {
    id: burst

    readonly property bool playing: flight.running
    signal ended

    function play(): void {
        if (!Motion.reduced)
            flight.restart();
    }

    NumberAnimation {
        id: flight
        target: burst
        property: "progress"
        from: 0
        to: 1
        duration: DarkUI.burstTime
        onFinished: burst.ended()
    }
}
