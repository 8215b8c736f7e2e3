// The hours of the period, counted up once in the room of the final figure.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

Item {
    id: number

    required property WrappedView model
    required property heroCard content
    property bool animated: false
    property bool stopped: false // stays as far as it came
    readonly property bool counts: animated && !Motion.reduced && content.hours > 0
    property reviewFigure shown: content.figure
    property real seconds: 0
    readonly property real gap: Math.round(DarkUI.heroReview.size * 0.1)
    readonly property real valueWidth: Math.min(full.implicitWidth,
                                                width - (unit.text === "" ? 0 : unit.width + gap))

    implicitHeight: DarkUI.heroReview.line
    Accessible.role: Accessible.StaticText
    Accessible.name: content.hoursText

    component Figure: DarkText {
        width: number.valueWidth
        role: DarkUI.heroReview
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 12
        Accessible.ignored: true
    }

    // The final figure keeps the room, and says how small it has to be.
    Figure {
        id: full
        visible: false
        text: number.content.figure.value
    }

    Figure {
        id: value
        text: number.shown.value
        font.pixelSize: full.fontInfo.pixelSize
    }

    DarkText {
        id: unit
        x: number.valueWidth + number.gap
        anchors.baseline: value.baseline
        text: number.shown.unit
        font: Qt.font({
            "family": DarkUI.heroReview.font.family,
            "weight": DarkUI.heroReview.font.weight,
            "pixelSize": Math.round(value.fontInfo.pixelSize * DarkUI.heroUnitScale)
        })
        color: DarkUI.t3
        renderType: Text.QtRendering
        Accessible.ignored: true
    }

    NumberAnimation on seconds {
        id: counting
        running: number.counts && !number.stopped
        from: 0
        to: DarkUI.countUpTime / 1000
        duration: DarkUI.countUpTime
    }

    onSecondsChanged: if (counts && !stopped)
        shown = model.countedUp(seconds)
}
