// The background of floating surfaces, with edge and shadow. Opaque enough to read on without blur.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: ground

    enum Material {
        Floating, // cards and panels
        Popover,
        Menu,
        OverBlur // where the desktop blurs the background
    }

    property int material: GlassBackground.Floating
    property ShadowToken shadow: material === GlassBackground.Floating ? DarkUI.shadowFloating
                                                                       : DarkUI.shadowPopover
    property bool shadowed: true

    radius: material === GlassBackground.Floating ? DarkUI.radiusFloating : DarkUI.radiusWindow
    color: material === GlassBackground.Floating ? DarkUI.floatingGround
         : material === GlassBackground.Popover ? DarkUI.popoverGround
         : material === GlassBackground.Menu ? DarkUI.menuGround : DarkUI.glassGround
    edge: DarkUI.hairline

    DarkShadow {
        anchors.fill: parent
        visible: ground.shadowed
        level: ground.shadow
        radius: ground.radius
    }
}
