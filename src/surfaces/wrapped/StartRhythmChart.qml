// The chart of session starts: a column per two hours, relative to the highest.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

Item {
    id: chart

    required property whenCard card
    property bool animated: false
    readonly property int columns: card.bars.length
    readonly property real pitch: (width - DarkUI.columnWidth) / Math.max(columns - 1, 1)

    implicitHeight: DarkUI.columnHeight + DarkUI.space8 + DarkUI.small.line
    Accessible.role: Accessible.Graphic
    Accessible.name: card.chartLabel

    Repeater {
        model: chart.columns

        Item {
            id: column
            required property int index
            readonly property bool isPeak: index === chart.card.peakBar

            x: Math.round(index * chart.pitch)
            width: DarkUI.columnWidth
            height: DarkUI.columnHeight

            GrowIn {
                id: entrance
                animated: chart.animated
                order: column.index
            }

            Plate {
                anchors.bottom: parent.bottom
                width: parent.width
                height: DarkUI.barStatHeight
                radius: height / 2
                color: DarkUI.barTrough
                visible: bar.height < height
            }

            Plate {
                id: bar
                anchors.bottom: parent.bottom
                width: parent.width
                height: Math.round(chart.card.bars[column.index] * parent.height * entrance.way)
                radius: Math.min(DarkUI.radiusColumn, height / 2)
                color: column.isPeak ? chart.card.accent
                                     : Tint.alpha(chart.card.accent, DarkUI.columnRestOpacity)
            }
        }
    }

    // Labels stand at the hour that they name.
    Repeater {
        model: chart.card.hourMarks

        DarkText {
            id: mark
            required property string modelData
            required property int index
            readonly property int last: chart.card.hourMarks.length - 1
            readonly property real place: chart.width * index / last

            x: index === 0 ? 0 : index === last ? place - implicitWidth
                                                : Math.round(place - implicitWidth / 2)
            y: DarkUI.columnHeight + DarkUI.space8
            text: modelData
            role: DarkUI.small
            color: DarkUI.textTertiary
            Accessible.ignored: true
        }
    }
}
