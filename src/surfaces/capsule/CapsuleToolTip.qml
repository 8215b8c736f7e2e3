// The tooltip below the capsule: what a click does.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit

GlassBackground {
    id: tip

    required property NotchCapsule capsule
    required property bool wanted

    material: GlassBackground.Menu
    shadowed: false
    radius: DarkUI.radiusKeycap
    width: Math.ceil(label.implicitWidth) + 2 * DarkUI.space8
    height: CapsuleTokens.tipHeight
    visible: opacity > 0
    opacity: 0

    states: State {
        name: "wanted"
        when: tip.wanted

        PropertyChanges {
            tip.opacity: 1
        }
    }

    transitions: Transition {
        to: "wanted"

        SequentialAnimation {
            PauseAnimation {
                duration: CapsuleTokens.tipDelay
            }
            NumberAnimation {
                property: "opacity"
                duration: DarkUI.hoverTime
            }
        }
    }

    DarkText {
        id: label
        anchors.centerIn: parent
        text: tip.capsule.toolTip
        role: DarkUI.small
        color: DarkUI.textSecondary
        Accessible.ignored: true
    }
}
