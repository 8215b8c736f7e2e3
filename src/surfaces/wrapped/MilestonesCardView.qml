// The page of milestones.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ReviewPage {
    id: page

    readonly property milestonesCard content: texts.milestones
    readonly property int count: content.badges.length
    readonly property int columns: count <= 4 ? 2 : count <= 9 ? 3 : 5
    readonly property bool crowded: columns > mostRoomy
    readonly property int mostRoomy: 3 // columns of cards of the usual size
    readonly property real gap: crowded ? DarkUI.space8 : DarkUI.space12
    readonly property real cellWidth: Math.floor((width - (columns - 1) * gap) / columns)
    readonly property real sentenceWidth: 300
    readonly property real gridPlace: 0.4 // relative to the free height, slightly above the middle

    kicker: content.kicker

    CascadeIn {
        id: sentence
        y: page.kickerHeight + DarkUI.space16
        animated: page.animated
        order: 1

        DarkText {
            width: page.sentenceWidth
            text: page.content.sentence
            role: DarkUI.titleXL
            wrapMode: Text.Wrap
        }
    }

    Grid {
        id: grid
        readonly property real room: page.height - sentence.y - sentence.height - DarkUI.space24
        y: page.height - room + Math.max(0, Math.round((room - height) * page.gridPlace))
        columns: page.columns
        spacing: page.gap

        Repeater {
            model: page.content.badges

            PopIn {
                id: entrance
                required property milestoneBadge modelData
                required property int index
                animated: page.animated
                order: index
                baseDelay: DarkUI.cascadeDelay + 2 * DarkUI.cascadeStep

                MilestoneBadgeView {
                    width: page.cellWidth
                    badge: entrance.modelData
                    colors: entrance.modelData.ring
                    small: page.columns > 2
                    tiny: page.crowded
                }
            }
        }
    }

    CelebrationBurst {
        anchors.horizontalCenter: parent.horizontalCenter
        y: grid.y + (grid.height - height) / 2
        animated: page.animated
        delay: DarkUI.cascadeDelay + 2 * DarkUI.cascadeStep + page.count * DarkUI.popStep
        colors: page.texts.poster.dotColors
    }
}
