// The glow around a field that invites input. Pulses; a steady halo with reduced motion.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: light

    property real radius: DarkUI.radiusButton
    property real phase: Motion.reduced ? 1 : 0 // 0 dark, 1 bright
    property bool glows: !Motion.reduced
    readonly property int ringWidth: DarkUI.focusWidth

    z: -1

    SequentialAnimation on phase {
        running: light.visible && !Motion.reduced
        loops: Animation.Infinite

        NumberAnimation {
            to: 1
            duration: DarkUI.invitationTime
            easing.type: Easing.InOutSine
        }
        NumberAnimation {
            to: 0
            duration: DarkUI.invitationTime
            easing.type: Easing.InOutSine
        }
    }

    Plate {
        anchors.fill: parent
        anchors.margins: -DarkUI.invitationHalo
        radius: light.radius + DarkUI.invitationHalo
        edgeWidth: DarkUI.invitationHalo
        edge: Tint.alpha(DarkUI.accent, DarkUI.invitationHaloOpacity * light.phase)
    }

    // Made of rings, so that nothing lies under the translucent field.
    Repeater {
        model: !light.glows ? 0 : DarkUI.invitationGlow / light.ringWidth

        Plate {
            required property int index
            readonly property real reach: (index + 1) * light.ringWidth // px beyond the field
            readonly property real nearness: 1 - reach / (DarkUI.invitationGlow + light.ringWidth)

            anchors.fill: parent
            anchors.margins: -reach
            radius: light.radius + reach
            edgeWidth: light.ringWidth
            edge: Tint.alpha(DarkUI.accent, DarkUI.invitationGlowOpacity * light.phase
                                                    * nearness * nearness)
        }
    }
}
