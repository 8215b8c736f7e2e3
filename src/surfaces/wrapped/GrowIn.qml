// The growth of bars, in sequence: a bar multiplies its length by `way`.
import QtQuick
import Vantle.Kit

EntranceSpring {
    property int order: 0
    property int baseDelay: 0 // ms

    spring: DarkUI.springGrow
    delay: baseDelay + order * DarkUI.growStep
}
