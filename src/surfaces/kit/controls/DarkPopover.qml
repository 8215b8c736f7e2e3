// A small panel whose arrow points at the item above it. The owner closes it on dismissed().
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

FocusScope {
    id: popover

    property real arrowX: width / 2 // tip of the arrow
    property bool arrowed: true
    property bool composited: true // otherwise opaque with square corners
    property string name
    readonly property real arrowSide: DarkUI.space12
    readonly property real arrowHeight: Math.round(arrowSide * Math.SQRT1_2)
    default property alias content: ground.data
    signal dismissed

    implicitWidth: DarkUI.popoverWidth
    Accessible.role: Accessible.Dialog
    Accessible.name: name

    Keys.onEscapePressed: popover.dismissed()

    GlassBackground {
        id: ground
        anchors.fill: parent
        material: GlassBackground.Popover
        radius: popover.composited ? DarkUI.radiusWindow : 0
        color: popover.composited ? DarkUI.popoverGround : DarkUI.windowGround
        shadowed: popover.composited
    }

    PopoverArrow {
        x: popover.arrowX - width / 2
        y: -popover.arrowHeight
        visible: popover.arrowed
        width: 2 * popover.arrowHeight + DarkUI.space2
        height: popover.arrowHeight + DarkUI.hairlineWidth // overlaps the panel's edge
        side: popover.arrowSide
        radius: DarkUI.radiusTiny
        color: DarkUI.windowGround
        edge: DarkUI.hairline
    }
}
