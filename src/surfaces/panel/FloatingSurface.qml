// The background of a card, toast or panel in its window, with shadow and transitions. The window
// is larger by the room for the shadow.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Panel

PanelRoot {
    id: surface

    property int inTime: DarkUI.cardInTime
    property int outTime: DarkUI.cardOutTime
    property int drop: DarkUI.cardRise // px that it moves down on entry
    property real radius: DarkUI.radiusFloating
    property ShadowToken shadow: DarkUI.shadowFloating
    property real groundWidth: DarkUI.cardWidth
    property real groundHeight: 0
    readonly property real aside: composited ? shadow.blur : 0
    readonly property real above: composited ? Math.max(0, shadow.blur - shadow.offset) : 0
    readonly property real below: composited ? shadow.blur + shadow.offset : 0
    readonly property real shown: ground.shown // 0 to 1, during transitions
    default property alias content: inside.data

    moveTime: DarkUI.toastMoveTime
    groundRect: Qt.rect(aside, above, groundWidth, groundHeight)
    implicitWidth: groundWidth + 2 * aside
    implicitHeight: groundHeight + above + below
    enabled: up
    focus: true
    // It may be dismissed before it was visible.
    onUpChanged: if (!up && shown === 0) surface.gone()

    GlassBackground {
        id: ground

        property real shown: surface.up ? 1 : 0

        x: surface.aside
        y: surface.above - (surface.up ? (1 - shown) * surface.drop : 0)
        width: surface.groundWidth
        height: surface.groundHeight
        radius: surface.composited ? surface.radius : 0
        color: surface.composited ? DarkUI.floatingGround : DarkUI.windowGround
        shadow: surface.shadow
        shadowed: surface.composited
        opacity: shown
        onShownChanged: if (shown === 0 && !surface.up) surface.gone()

        Behavior on shown {
            NumberAnimation {
                // Without a compositor it cannot fade.
                duration: !surface.composited ? 0 : surface.up ? surface.inTime : surface.outTime
                easing.type: Easing.OutCubic
            }
        }

        Item {
            id: inside
            anchors.fill: parent
        }
    }
}
