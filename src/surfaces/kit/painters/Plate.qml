// A rounded ground with an edge drawn over its rim. (The edge of a Rectangle takes the place of
// the fill, and white on nothing is darker than white on white.)
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Rectangle {
    id: plate

    property color edge: DarkUI.clear
    property real edgeWidth: DarkUI.hairlineWidth
    // Whole device pixels: a part of one would be brighter at one side than at another.
    readonly property real snappedEdge: Math.max(1, Math.round(edgeWidth * Screen.devicePixelRatio))
                                        / Screen.devicePixelRatio

    color: DarkUI.cardFill

    Rectangle {
        anchors.fill: parent
        visible: plate.edge.a > 0
        radius: plate.radius
        color: "transparent"
        border.width: plate.snappedEdge
        border.color: plate.edge
    }
}
