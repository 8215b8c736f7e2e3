// The page with the hours of the period.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ReviewPage {
    id: page

    readonly property heroCard content: texts.hero

    kicker: content.kicker
    ruledFoot: foot.ruled ? foot : null

    Column {
        y: Math.round((foot.y - height) / 2)
        width: page.width

        CascadeIn {
            animated: page.animated
            order: 1

            DarkText {
                text: page.content.lead
                role: DarkUI.titleMQuiet
                color: DarkUI.textSecondary
            }
        }

        Item {
            width: 1
            height: DarkUI.space12
        }

        CascadeIn {
            width: page.width
            animated: page.animated
            order: 2
            slam: true

            CountUpHeroNumber {
                width: page.width
                model: page.model
                content: page.content
                animated: page.animated
                stopped: page.leaving
            }
        }

        Item {
            width: 1
            height: DarkUI.space18
        }

        CascadeIn {
            animated: page.animated
            order: 3

            DarkText {
                text: page.content.inSentence
                role: DarkUI.titleMQuiet
                color: DarkUI.textSecondary
            }
        }

        Item {
            width: 1
            height: DarkUI.space18
        }

        CascadeIn {
            animated: page.animated
            order: 4

            DarkText {
                text: page.content.sessions
                role: DarkUI.lead
            }
        }
    }

    PageFoot {
        id: foot
        leastHeight: page.quietHeight
        lines: Array.from(page.content.quiet)
        ruled: page.content.quiet.length > 0
        animated: page.animated
        order: 5
    }
}
