// The ground of a window that draws its own frame. Where nothing composes windows the corners
// can't be clear and are square; then `composited` is false. The shadow needs clear space around.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: glass

    property bool composited: true
    property bool shadowed: false

    radius: composited ? DarkUI.radiusWindow : 0
    color: DarkUI.windowGround

    DarkShadow {
        anchors.fill: parent
        visible: glass.shadowed && glass.composited
        level: DarkUI.shadowWindow
        radius: glass.radius
    }

    Plate {
        readonly property real outside: glass.shadowed ? DarkUI.hairlineWidth : 0
        anchors.fill: parent
        anchors.margins: -outside
        radius: glass.radius > 0 ? glass.radius + outside : 0
        edgeWidth: DarkUI.hairlineWidth
        edge: DarkUI.windowEdge
    }
}
