// The dots that drift behind all pages. Nothing is computed or drawn while the window is not the
// active one; with reduced motion they stand still.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

AmbientDots {
    id: field

    readonly property int starStep: Math.ceil(1000 / 30) // ms, what a star wants and the most there is

    Timer {
        interval: field.hasStar ? field.starStep : DarkUI.ambientStep
        repeat: true
        running: field.visible && field.Window.active && !Motion.reduced
        onTriggered: field.seconds += interval / 1000
    }
}
