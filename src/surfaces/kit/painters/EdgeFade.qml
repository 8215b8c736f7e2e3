// Fades scrolled content into the background at an edge with more content beyond.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Rectangle {
    id: fade

    property int edge: Qt.BottomEdge
    property color ground: DarkUI.windowGround
    readonly property bool horizontal: edge === Qt.LeftEdge || edge === Qt.RightEdge
    readonly property bool toGround: edge === Qt.BottomEdge || edge === Qt.RightEdge

    implicitWidth: DarkUI.edgeFadeLength
    implicitHeight: DarkUI.edgeFadeLength
    gradient: Gradient {
        orientation: fade.horizontal ? Gradient.Horizontal : Gradient.Vertical
        GradientStop {
            position: 0
            color: fade.toGround ? Tint.alpha(fade.ground, 0) : fade.ground
        }
        GradientStop {
            position: 1
            color: fade.toGround ? fade.ground : Tint.alpha(fade.ground, 0)
        }
    }
}
