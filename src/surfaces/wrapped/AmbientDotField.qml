// The dots that drift behind all pages. Nothing is computed or drawn while the window is not the
// active one; with reduced motion they stand still.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Wrapped

AmbientDots {
    id: field

    readonly property int starStep: Math.ceil(second / 30) // ms; no more moments a second than that
    readonly property real second: 1000 // ms

    Timer {
        interval: field.hasStar ? field.starStep : DarkUI.ambientStep
        repeat: true
        running: field.visible && field.Window.active && !Motion.reduced
        onTriggered: field.seconds += interval / field.second
    }
}
