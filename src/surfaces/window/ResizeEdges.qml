// The edges and corners that resize a window.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: edges

    signal grabbed(edges: int)

    readonly property int grip: DarkUI.space6

    component Grip: MouseArea {
        required property int side
        onPressed: edges.grabbed(side)
    }

    Grip {
        side: Qt.TopEdge
        width: parent.width
        height: edges.grip
        cursorShape: Qt.SizeVerCursor
    }
    Grip {
        side: Qt.BottomEdge
        width: parent.width
        height: edges.grip
        anchors.bottom: parent.bottom
        cursorShape: Qt.SizeVerCursor
    }
    Grip {
        side: Qt.LeftEdge
        width: edges.grip
        height: parent.height
        cursorShape: Qt.SizeHorCursor
    }
    Grip {
        side: Qt.RightEdge
        width: edges.grip
        height: parent.height
        anchors.right: parent.right
        cursorShape: Qt.SizeHorCursor
    }
    Grip {
        side: Qt.TopEdge | Qt.LeftEdge
        width: 2 * edges.grip
        height: 2 * edges.grip
        cursorShape: Qt.SizeFDiagCursor
    }
    Grip {
        side: Qt.TopEdge | Qt.RightEdge
        width: 2 * edges.grip
        height: 2 * edges.grip
        anchors.right: parent.right
        cursorShape: Qt.SizeBDiagCursor
    }
    Grip {
        side: Qt.BottomEdge | Qt.LeftEdge
        width: 2 * edges.grip
        height: 2 * edges.grip
        anchors.bottom: parent.bottom
        cursorShape: Qt.SizeBDiagCursor
    }
    Grip {
        side: Qt.BottomEdge | Qt.RightEdge
        width: 2 * edges.grip
        height: 2 * edges.grip
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        cursorShape: Qt.SizeFDiagCursor
    }
}
