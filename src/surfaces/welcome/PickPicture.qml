// The empty wall with its first brick.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Item {
    id: picture

    required property WelcomeView model
    implicitHeight: WelcomeTokens.pickStageHeight

    BrickWall {
        id: wall
        anchors.fill: parent
        radius: DarkUI.radiusCard
        brickRadius: DarkUI.radiusSmall
    }

    SoftGlow {
        anchors.fill: first
    }

    Plate {
        id: first
        x: wall.place.x
        y: wall.place.y
        width: wall.place.width
        height: wall.place.height
        radius: DarkUI.radiusSmall
        color: DarkUI.accent

        Plate {
            x: WelcomeTokens.shineInset
            y: WelcomeTokens.shineInset
            width: parent.width - 2 * x
            height: WelcomeTokens.shineHeight
            radius: height / 2
            color: WelcomeTokens.brickShine
        }
    }
}
