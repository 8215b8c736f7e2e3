// The brick in the bar and the hours window behind it.
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

    // Pulses a few times, then stays lit.
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

        Miniature {
            x: Math.round((parent.width - width) / 2)
            y: WelcomeTokens.windowTop
            width: implicitWidth
            height: implicitHeight
            source: "qrc:/qt/qml/Vantle/Welcome/SampleDashboard.qml"
            samples: picture.model.samples
            zoom: WelcomeTokens.windowZoom
            margin: DarkUI.shadowWindow.blur + DarkUI.shadowWindow.offset
        }
    }
}
