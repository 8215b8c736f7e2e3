// The page of start times and longest stretches.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ReviewPage {
    id: page

    readonly property whenCard content: texts.when
    readonly property real headlineWidth: 330

    kicker: content.kicker

    Column {
        id: head
        y: page.kickerHeight + DarkUI.space16
        width: page.width
        spacing: DarkUI.space10

        CascadeIn {
            animated: page.animated
            order: 1

            DarkText {
                width: page.headlineWidth
                text: page.content.headline
                role: DarkUI.titleXL
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
            }
        }

        CascadeIn {
            visible: page.content.detail !== ""
            animated: page.animated
            order: 2

            DarkText {
                width: page.width
                text: page.content.detail
                color: DarkUI.textTertiary
                wrapMode: Text.Wrap
            }
        }
    }

    CascadeIn {
        id: caption
        anchors.bottom: chart.top
        anchors.bottomMargin: DarkUI.space14
        width: page.width
        animated: page.animated
        order: 3

        DarkText {
            width: page.width - peak.width - DarkUI.space12
            text: page.content.chartCaption
            role: DarkUI.caption
            color: DarkUI.textTertiary
            wrapMode: Text.Wrap
        }

        DarkKicker {
            id: peak
            anchors.right: parent.right
            y: (DarkUI.caption.line - height) / 2
            text: page.content.peak
            color: DarkUI.accentText
        }
    }

    // Centred when few boxes leave more room.
    StartRhythmChart {
        id: chart
        anchors.bottom: boxes.top
        anchors.bottomMargin: DarkUI.space28
        width: page.width
        card: page.content
        animated: page.animated
    }

    Column {
        id: boxes
        anchors.bottom: parent.bottom
        width: page.width
        spacing: DarkUI.space8

        Repeater {
            model: page.content.facts

            CascadeIn {
                id: entrance
                required property factBox modelData
                required property int index
                animated: page.animated
                order: 4 + index

                FactBoxView {
                    width: page.width
                    fact: entrance.modelData
                }
            }
        }
    }
}
