// The background of a window without the desktop's frame. Without a compositor (`composited` is
// false) its corners are square, since they cannot be transparent. The shadow needs transparent
// space around it.
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
