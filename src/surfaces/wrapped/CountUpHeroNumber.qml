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
    readonly property int unitSize: Math.round(DarkUI.heroReview.size * DarkUI.heroUnitScale)

    implicitHeight: DarkUI.heroReview.line
    Accessible.role: Accessible.StaticText
    Accessible.name: content.hoursText

    component Value: DarkText {
        Accessible.ignored: true
    }
    component Unit: DarkText {
        readonly property real gap: 0.25 // relative to its size
        leftPadding: Math.round(role.size * gap)
        color: DarkUI.textTertiary
        Accessible.ignored: true
    }

    DisplayRole {
        id: valueRole
        size: Math.floor(DarkUI.heroReview.size * number.fit)
        line: DarkUI.heroReview.line
        tracking: DarkUI.heroReview.tracking
    }

    DisplayRole {
        id: unitRole
        size: Math.round(number.unitSize * number.fit)
        line: number.unitSize
    }

    Row {
        id: full
        visible: false

        Value {
            id: fullValue
            text: number.content.figure.value
            role: DarkUI.heroReview
        }

        Unit {
            text: number.content.figure.unit
            role: DisplayRole {
                size: number.unitSize
                line: number.unitSize
            }
        }
    }

    // Aligns the first digit optically with the page's margin.
    TextMetrics {
        id: edge
        font: value.font
        text: number.content.figure.value
    }

    Value {
        id: value
        x: -Math.round(edge.tightBoundingRect.x)
        text: number.shown.value
        role: valueRole
    }

    // The unit's final position, unless an intermediate figure is wider: "6.8" before "7".
    Unit {
        x: value.x + Math.max(fullValue.implicitWidth * number.fit, value.implicitWidth)
        anchors.baseline: value.baseline
        text: number.shown.unit
        role: unitRole
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
