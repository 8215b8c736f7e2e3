// Lengths of the capsule alone, in px, in addition to the kit's tokens.
pragma Singleton
import QtQuick
import Vantle.Kit

QtObject {
    readonly property real inset: DarkUI.capsuleInset // of all content, from the left and the right
    readonly property real rowHeight: DarkUI.capsuleRowHeight
    readonly property real dotTop: 15
    readonly property real skillLineLeft: 33
    readonly property real skillLineTop: 12
    readonly property real clockTop: 25
    readonly property real roundChip: DarkUI.capsuleChipSize
    readonly property real roundChipTop: 16
    readonly property real stopGlyph: 9
    readonly property real playGlyph: 16 // on the icon grid; the triangle itself is 8 wide
    readonly property real glow: 10 // reach of the ring's glow
    readonly property real glowOpacity: 0.55
    readonly property real ringOpacity: 0.6
    readonly property color roundChipFill: DarkUI.fillHover
    readonly property color glyph: Qt.rgba(1, 1, 1, 0.92)
    readonly property real pausedDot: 0.4 // opacity

    readonly property real chipsTop: 60
    readonly property real lineBelowChips: 12 // from the chips to the line above the add row
    readonly property real addRowHeight: DarkUI.capsuleAddRowHeight
    readonly property real addSquare: 22
    readonly property color addSquareFill: DarkUI.quietHover
    readonly property color addName: Qt.rgba(1, 1, 1, 0.72)

    readonly property real tipHeight: 22
    readonly property real tipTop: 8 // below the capsule
    readonly property int tipDelay: 1500 // ms

    readonly property int dotDelay: 400 // ms before the dot starts to breathe
    readonly property int fadeTime: 280 // ms, when the capsule disappears

    readonly property real overlayMargin: 44 // from the window's sides, for the shadow
    readonly property real popoverGap: 2 // between the popover's arrow and its owner
}
