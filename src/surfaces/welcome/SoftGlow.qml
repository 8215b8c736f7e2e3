// The glow around a lit item, made of rings so that nothing lies under a translucent item.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Item {
    id: glow

    property color color: DarkUI.accent
    property real radius: DarkUI.radiusSmall
    property real strength: 1
    readonly property int ringWidth: DarkUI.space2

    Repeater {
        model: WelcomeTokens.glowReach / glow.ringWidth

        Plate {
            required property int index
            readonly property real reach: (index + 1) * glow.ringWidth // px beyond what is lit
            readonly property real nearness: 1 - reach / (WelcomeTokens.glowReach + glow.ringWidth)

            anchors.fill: parent
            anchors.margins: -reach
            radius: glow.radius + reach
            edgeWidth: glow.ringWidth
            edge: Tint.alpha(glow.color, WelcomeTokens.glowOpacity * glow.strength
                                                 * nearness * nearness)
        }
    }
}
