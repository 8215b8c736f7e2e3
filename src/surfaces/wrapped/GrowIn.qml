// How much of its final length a bar has, one bar after the other: the bar multiplies its length
// along its axis with `way`.
import QtQuick
import Vantle.Kit

EntranceSpring {
    property int order: 0
    property int baseDelay: 0 // ms

    spring: DarkUI.springGrow
    delay: baseDelay + order * DarkUI.growStep
}
