// A card on the background. Cards are not nested.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: card

    property real padding: DarkUI.space16
    default property alias content: inside.data

    implicitWidth: inside.childrenRect.width + 2 * padding
    implicitHeight: inside.childrenRect.height + 2 * padding
    radius: DarkUI.radiusCard
    color: DarkUI.cardFill
    edge: DarkUI.hairline

    Item {
        id: inside
        anchors.fill: parent
        anchors.margins: card.padding
    }
}
