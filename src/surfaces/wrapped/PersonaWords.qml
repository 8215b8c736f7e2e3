// The name of the persona and its meaning.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

Column {
    id: words

    required property personaCard content
    property bool animated: false
    property bool torn: false
    readonly property real lineWidth: 330 // wraps into two lines of similar length

    CascadeIn {
        animated: words.animated
        order: 2

        DarkText {
            text: words.content.lead
            role: DarkUI.cardTitleQuiet
            color: DarkUI.textSecondary
        }
    }

    PersonaRevealName {
        width: words.width
        name: words.content.name
        startColor: words.content.startColor
        endColor: words.content.endColor
        burstColors: words.content.celebrationColors
        startDelay: DarkUI.cascadeDelay + 4 * DarkUI.cascadeStep
        animated: words.animated
        torn: words.torn
    }

    Item {
        width: 1
        height: DarkUI.space14
    }

    CascadeIn {
        animated: words.animated
        order: 4

        DarkText {
            width: words.lineWidth
            text: words.content.line
            role: DarkUI.lead
            wrapMode: Text.Wrap
        }
    }
}
