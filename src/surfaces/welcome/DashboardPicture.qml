// The brick in the bar, and the hours that are a click away.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

SampleFrame {
    id: picture

    required property WelcomeView model
    property real brickGlow: Motion.reduced ? 1 : 0

    implicitHeight: WelcomeTokens.stageHeight
    label: model.sampleLabel

    // It calls a few times, and then stays lit.
    SequentialAnimation on brickGlow {
        running: !Motion.reduced

        SequentialAnimation {
            loops: WelcomeTokens.glowTimes

            NumberAnimation {
                to: 1
                duration: WelcomeTokens.glowTime
                easing.type: Easing.InOutSine
            }
            NumberAnimation {
                to: 0.2
                duration: WelcomeTokens.glowTime
                easing.type: Easing.InOutSine
            }
        }
        NumberAnimation {
            to: 1
            duration: WelcomeTokens.glowTime
            easing.type: Easing.InOutSine
        }
    }

    SampleDesk {
        anchors.fill: parent
        barHeight: WelcomeTokens.windowBar

        SampleBrick {
            anchors.right: time.left
            anchors.rightMargin: DarkUI.space18
            y: (WelcomeTokens.windowBar - height) / 2
            lit: true
            glow: picture.brickGlow
        }

        DarkText {
            id: time
            anchors.right: parent.right
            anchors.rightMargin: DarkUI.space20
            y: (WelcomeTokens.windowBar - height) / 2
            text: "14:05"
            role: DarkUI.bodyMedium
        }

        SampleDashboard {
            x: (parent.width - width * scale) / 2 + DarkUI.space2
            y: 62
            width: WelcomeTokens.windowWidth
            scale: WelcomeTokens.windowScale
            transformOrigin: Item.TopLeft
            samples: picture.model.samples
        }
    }
}
