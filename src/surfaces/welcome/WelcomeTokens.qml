// Lengths and colours of the welcome alone, in px, in addition to the kit's tokens.
pragma Singleton
import QtQuick
import Vantle.Kit

QtObject {
    readonly property real width: 560
    readonly property real height: 572
    readonly property real margin: 44 // of the text
    readonly property real footBottom: 28
    readonly property real wordsTop: 30 // below the stage

    readonly property real stageLeft: 20
    readonly property real stageWidth: width - 2 * stageLeft
    readonly property color stage: Qt.rgba(1, 1, 1, 0.025)
    readonly property real stageHeight: 300
    readonly property real pickStageHeight: 220
    readonly property real panelStageHeight: 364
    readonly property real posterStageHeight: 340

    readonly property real dot: 6 // of the progress row
    readonly property real dotPitch: 13
    readonly property color dotPast: Qt.rgba(1, 1, 1, 0.38)
    readonly property color dotCurrent: DarkUI.textPrimary
    readonly property color dotToCome: Qt.rgba(1, 1, 1, 0.143)

    readonly property color brickShine: Qt.rgba(1, 1, 1, 0.20)
    readonly property real shineInset: 3
    readonly property real shineHeight: 9
    readonly property real glowReach: 14
    readonly property real glowOpacity: 0.34
    readonly property int glowTime: 700 // ms each way
    readonly property int glowTimes: 3

    readonly property real tagHeight: 46
    readonly property real tagPitch: 56
    readonly property real tagLowHeight: 34 // with many tags, or a row below them
    readonly property real tagLowPitch: 40
    readonly property real tagWidth: 211
    readonly property real tagColumn: 221
    readonly property real tagsWidth: tagColumn + tagWidth
    readonly property real tagDot: 9

    readonly property real key: 92
    readonly property real keyGap: 16
    readonly property real keyFront: 4 // height of the key's visible side
    readonly property color keySide: Qt.rgba(1, 1, 1, 0.03)
    readonly property color keyTop: Qt.rgba(1, 1, 1, 0.04)
    readonly property real litSide: 0.08 // opacities of the accent
    readonly property real litTop: 0.12
    readonly property TypeRole keySign: DisplayRole { size: 32; line: 36; weight: Font.Medium }
    readonly property TypeRole keyWord: DisplayRole { size: 22; line: 28; weight: Font.Medium }

    readonly property TypeRole name: TypeRole { size: 15; line: 20; weight: Font.Medium }
    readonly property TypeRole clock: DisplayRole { size: 70; line: 78; tracking: -0.018 }
    readonly property TypeRole clockSkill: TypeRole { size: 12; line: 16; tracking: 0.09 }
    readonly property real clockDot: 13
    readonly property real wordSpace: 0.24 // em

    readonly property color desk: "#3D4454" // the sample desktop
    readonly property color bar: "#14161C"
    readonly property real windowBar: 34
    readonly property real panelBar: 28
    readonly property real notchBar: 24
    readonly property real brickSign: 16
    readonly property real brickPlaceWidth: 38
    readonly property real brickPlaceHeight: 28

    readonly property real appsLeft: 60
    readonly property real appsWidth: 400
    readonly property real appRow: 41
    readonly property real appTile: 26

    readonly property real notchZoom: 1.28 // scale of the pictures
    readonly property real windowZoom: 0.66
    readonly property real panelZoom: 0.58
    readonly property real windowTop: 62
    readonly property real pointerWidth: 13
    readonly property real pointerHeight: 18
    readonly property real windowWidth: 612
    readonly property real posterWidth: 212
    readonly property real appIcon: 168
}
