// A group of rows separated by hairlines.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: card

    default property alias rows: column.data

    implicitHeight: column.height
    radius: DarkUI.radiusCard
    color: DarkUI.cardFill
    edge: DarkUI.hairline

    Column {
        id: column
        width: parent.width
    }
}
