// A sample desktop: background and top bar.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Plate {
    id: desk

    required property real barHeight
    default property alias content: inside.data

    radius: DarkUI.radiusCard
    color: WelcomeTokens.desk

    Item {
        width: parent.width
        height: desk.barHeight
        clip: true

        Plate {
            width: parent.width
            height: parent.height + radius
            radius: desk.radius
            color: WelcomeTokens.bar
        }
    }

    Item {
        id: inside
        anchors.fill: parent
        clip: true
    }
}
