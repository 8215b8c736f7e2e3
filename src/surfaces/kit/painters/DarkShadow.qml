// The shadow of a surface, from its rectangle, a level and a radius.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: shadow

    property ShadowToken level: DarkUI.shadowFloating
    property real radius: DarkUI.radiusFloating

    z: -1

    ShadowLayer {
        anchors.fill: parent
        radius: shadow.radius
        offset: shadow.level.offset
        blur: shadow.level.blur
        strength: shadow.level.strength
    }

    ShadowLayer {
        anchors.fill: parent
        visible: shadow.level.tightStrength > 0
        radius: shadow.radius
        offset: shadow.level.tightOffset
        blur: shadow.level.tightBlur
        strength: shadow.level.tightStrength
    }
}
