// Fades scrolled content into the background at an edge with more content beyond.
import QtQuick
import Vantle.Kit

FadeLayer {
    edge: Qt.BottomEdge
    ground: DarkUI.windowGround
    implicitWidth: DarkUI.edgeFadeLength
    implicitHeight: DarkUI.edgeFadeLength
}
