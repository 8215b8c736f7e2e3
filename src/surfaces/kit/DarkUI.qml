// The tokens of the dark look: colours, type, space, shape and motion. No view has a number or a
// colour of its own for any of these.
pragma Singleton
import QtQuick

QtObject {
    // Grounds and text
    readonly property color base: "#0A0A0F"
    readonly property color ink: "#0A0A0F"
    readonly property color hairline: Qt.rgba(1, 1, 1, 0.08)
    readonly property color cardFill: Qt.rgba(1, 1, 1, 0.06)
    readonly property color cardFillHover: Qt.rgba(1, 1, 1, 0.10)
    readonly property color cardFillPressed: Qt.rgba(1, 1, 1, 0.14)
    readonly property color textPrimary: Qt.rgba(1, 1, 1, 0.95)
    readonly property color textSecondary: Qt.rgba(1, 1, 1, 0.68)

    // The one main action and the keyboard focus
    readonly property color accent: "#7A78FF"
    readonly property color accentHover: "#8E8CFF"
    readonly property color accentPressed: "#706EEE"
    readonly property color focusRing: "#A3A1FF"

    // Type: families, sizes and line heights in px
    readonly property string textFamily: "Inter"
    readonly property string displayFamily: "Inter Display"
    readonly property int bodySize: 13
    readonly property int bodyLine: 20
    readonly property int cardTitleSize: 17
    readonly property int cardTitleLine: 22
    readonly property real titleTracking: -0.010 // em

    // Space in px
    readonly property int space2: 2
    readonly property int space8: 8
    readonly property int space14: 14
    readonly property int space20: 20

    // Shape in px
    readonly property int buttonRadius: 9
    readonly property int buttonHeight: 32
    readonly property int hairlineWidth: 1
    readonly property int focusWidth: 2
    readonly property int focusGap: 2
    readonly property int cardWidth: 380

    // Motion in ms
    readonly property int hoverTime: 120
}
