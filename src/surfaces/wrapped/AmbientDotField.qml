// The drifting dots behind all pages. Paused while the window is inactive; still with reduced
// motion.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Wrapped

AmbientDots {
    id: field

    readonly property int starStep: Math.ceil(second / 30) // ms; the frame rate limit
    readonly property real second: 1000 // ms

    Timer {
        interval: field.hasStar ? field.starStep : DarkUI.ambientStep
        repeat: true
        running: field.visible && field.Window.active && !Motion.reduced
        onTriggered: field.seconds += interval / field.second
    }
}
