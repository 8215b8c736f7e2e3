// The page with the calendar and the wall of the period.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ReviewPage {
    id: page

    readonly property rhythmCard content: texts.rhythm
    readonly property bool hasWall: content.wallKicker !== ""
    readonly property real below: content.years.length > 0 ? years.height + DarkUI.space14
                                                         : kickerHeight + DarkUI.space14

    kicker: content.kicker

    Column {
        y: Math.max(page.below, Math.round((page.height - height) / 2))
        width: page.width

        CascadeIn {
            width: page.width
            animated: page.animated
            order: 1

            RhythmMap {
                width: page.width
                rhythm: page.content
                animated: page.animated
            }
        }

        Item {
            width: 1
            height: DarkUI.space20
        }

        CascadeIn {
            width: page.width
            animated: page.animated
            order: 2

            DarkText {
                width: page.width
                text: page.content.caption
                color: DarkUI.textTertiary
                wrapMode: Text.Wrap
            }
        }

        Item {
            width: 1
            height: DarkUI.space64
            visible: page.hasWall
        }

        CascadeIn {
            width: page.width
            visible: page.hasWall
            animated: page.animated
            order: 3

            PeriodWall {
                width: page.width
                model: page.model
                content: page.content
            }
        }
    }

    YearSwitch {
        id: years
        anchors.right: parent.right
        y: (page.kickerHeight - height) / 2
        width: Math.min(implicitWidth, page.width - page.kickerWidth - DarkUI.space20)
        visible: page.content.years.length > 0
        content: page.content
        onChosen: year => page.model.showYear(year)
    }
}
