// The hours of the period, counted up once within the final figure's room.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review
import Vantle.Wrapped

Item {
    id: number

    required property WrappedView model
    required property heroCard content
    property bool animated: false
    property bool stopped: false // keeps the current value
    readonly property bool counts: animated && !Motion.reduced && content.hours > 0
    property bool counted: false
    property real seconds: 0
    readonly property reviewFigure shown: counts && !counted ? model.countedUp(seconds)
                                                             : content.figure
    // Shrinks a figure that is too wide, with its unit.
    readonly property real fit: width > 0 ? Math.min(1, width / full.implicitWidth) : 1
    readonly property real countingSeconds: DarkUI.countUpTime / 1000
    readonly property real pairGap: DarkUI.space20
    readonly property int unitSize: Math.round(DarkUI.heroReview.size * DarkUI.heroUnitScale)

    implicitHeight: DarkUI.heroReview.line
    Accessible.role: Accessible.StaticText
    Accessible.name: content.hoursText

    // Figures and units in turn: "718", "h", "56", "min", or the first two alone.
    function words(figure: reviewFigure): list<string> {
        return (figure.value + " " + figure.unit).split(" ");
    }

    // A figure and its unit.
    component Pair: Item {
        id: pair

        required property list<string> words
        required property int at // index of the figure; its unit is the next word
        required property TypeRole valueRole
        required property TypeRole unitRole
        property real room: 0 // minimum width of the figure, px
        readonly property alias value: value
        readonly property real unitGap: 0.25 // relative to the unit's size

        readonly property bool filled: value.text !== ""

        visible: filled
        implicitWidth: filled ? unit.x + unit.implicitWidth : 0
        implicitHeight: value.implicitHeight

        DarkText {
            id: value
            text: pair.words[pair.at] ?? ""
            role: pair.valueRole
            Accessible.ignored: true
        }

        DarkText {
            id: unit
            x: Math.max(pair.room, value.implicitWidth)
            anchors.baseline: value.baseline
            leftPadding: Math.round(role.size * pair.unitGap)
            text: pair.words[pair.at + 1] ?? ""
            role: pair.unitRole
            color: DarkUI.textTertiary
            Accessible.ignored: true
        }
    }

    readonly property TypeRole valueRole: DisplayRole {
        size: Math.floor(DarkUI.heroReview.size * number.fit)
        line: DarkUI.heroReview.line
        tracking: DarkUI.heroReview.tracking
    }

    readonly property TypeRole unitRole: DisplayRole {
        size: Math.round(number.unitSize * number.fit)
        line: number.unitSize
    }

    Row {
        id: full
        visible: false // for measuring
        spacing: second.filled ? number.pairGap : 0

        component FullPair: Pair {
            words: number.words(number.content.figure)
            valueRole: DarkUI.heroReview
            unitRole: DisplayRole {
                size: number.unitSize
                line: number.unitSize
            }
        }

        FullPair {
            id: first
            at: 0
        }
        FullPair {
            id: second
            at: 2
        }
    }

    // Aligns the first digit optically with the page's margin.
    TextMetrics {
        id: edge
        font: shownFirst.value.font
        text: shownFirst.value.text
    }

    // The units' final positions, unless an intermediate figure is wider: "6.8" before "7".
    Row {
        x: -Math.round(edge.tightBoundingRect.x)
        spacing: shownSecond.filled ? number.pairGap * number.fit : 0

        component ShownPair: Pair {
            words: number.words(number.shown)
            valueRole: number.valueRole
            unitRole: number.unitRole
        }

        ShownPair {
            id: shownFirst
            at: 0
            room: first.value.implicitWidth * number.fit
        }
        ShownPair {
            id: shownSecond
            at: 2
            room: second.value.implicitWidth * number.fit
        }
    }

    NumberAnimation {
        target: number
        property: "seconds"
        running: number.counts && !number.stopped
        from: 0
        to: number.countingSeconds
        duration: DarkUI.countUpTime
        onFinished: number.counted = true
    }
}
