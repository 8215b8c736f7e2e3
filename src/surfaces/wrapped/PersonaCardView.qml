// The page of the persona, or of the progress towards one.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review
import Vantle.Wrapped

ReviewPage {
    id: page

    readonly property personaCard content: texts.persona
    readonly property bool known: content.name !== ""

    kicker: content.kicker
    ruledFoot: foot.ruled ? foot : null

    Column {
        y: Math.round((foot.y - height) / 2)
        width: page.width
        spacing: DarkUI.space28

        PopIn {
            animated: page.animated
            baseDelay: DarkUI.cascadeDelay + DarkUI.cascadeStep

            PersonaDisc {
                width: DarkUI.personaDiscSize
                height: DarkUI.personaDiscSize
                card: page.content
            }
        }

        PersonaWords {
            width: page.width
            visible: page.known
            content: page.content
            animated: page.animated && page.known
            torn: page.leaving
        }

        PersonaShaping {
            width: page.width
            visible: !page.known
            content: page.content
            animated: page.animated && !page.known
        }
    }

    PageFoot {
        id: foot
        lines: [page.content.quiet]
        ruled: page.known
        animated: page.animated
        order: 5

        PersonaFacts {
            width: page.width
            visible: page.known
            height: visible ? implicitHeight : 0
            facts: page.known ? page.content.facts : []
        }
    }
}
