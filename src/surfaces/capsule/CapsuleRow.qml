// The top row of the capsule: dot, skill line, clock, and the round start or stop chip.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit

Item {
    id: row

    required property NotchCapsule capsule
    property bool still: false // a picture, whose clock doesn't move

    readonly property color tint: capsule.tint

    FlatDot {
        id: dot
        x: CapsuleTokens.inset
        y: CapsuleTokens.dotTop
        width: DarkUI.chipDotSize
        height: DarkUI.chipDotSize
        color: row.tint
        opacity: row.capsule.paused ? CapsuleTokens.pausedDot : 1

        // Animated only while the clock runs and is visible.
        SequentialAnimation {
            running: row.capsule.expanded && !row.capsule.idlePrompt && !row.capsule.paused
                     && !Motion.reduced
            onStopped: {
                dot.scale = 1;
                dot.opacity = Qt.binding(() => row.capsule.paused ? CapsuleTokens.pausedDot : 1);
            }

            PauseAnimation {
                duration: CapsuleTokens.dotDelay
            }
            SequentialAnimation {
                loops: Animation.Infinite

                ParallelAnimation {
                    NumberAnimation {
                        target: dot
                        property: "opacity"
                        from: 1
                        to: DarkUI.clockDotOpacity
                        duration: DarkUI.clockDotTime
                        easing.type: Easing.InOutSine
                    }
                    NumberAnimation {
                        target: dot
                        property: "scale"
                        from: 1
                        to: DarkUI.clockDotScale
                        duration: DarkUI.clockDotTime
                        easing.type: Easing.InOutSine
                    }
                }
                ParallelAnimation {
                    NumberAnimation {
                        target: dot
                        property: "opacity"
                        to: 1
                        duration: DarkUI.clockDotTime
                        easing.type: Easing.InOutSine
                    }
                    NumberAnimation {
                        target: dot
                        property: "scale"
                        to: 1
                        duration: DarkUI.clockDotTime
                        easing.type: Easing.InOutSine
                    }
                }
            }
        }
    }

    DarkText {
        x: CapsuleTokens.skillLineLeft
        y: CapsuleTokens.skillLineTop
        text: row.capsule.skillLine
        role: DarkUI.capsuleSkill
        color: row.capsule.paused ? DarkUI.textCapsulePaused : DarkUI.textCapsuleName
    }

    DarkText {
        x: CapsuleTokens.inset
        y: CapsuleTokens.clockTop
        visible: row.still
        text: row.capsule.clock
        role: DarkUI.capsuleClock
    }

    TabularText {
        x: CapsuleTokens.inset
        y: CapsuleTokens.clockTop
        visible: !row.still
        text: row.capsule.clock
        role: DarkUI.capsuleClock
        color: DarkUI.textPrimary
    }

    RoundGlow {
        anchors.fill: button
        visible: row.capsule.idlePrompt
        color: Tint.alpha(row.tint, CapsuleTokens.glowOpacity)
        reach: CapsuleTokens.glow
    }

    KitPressable {
        id: button
        anchors.right: parent.right
        anchors.rightMargin: CapsuleTokens.inset
        y: CapsuleTokens.roundChipTop
        width: CapsuleTokens.roundChip
        height: CapsuleTokens.roundChip
        name: row.capsule.idlePrompt ? qsTr("Start") : qsTr("Stop")
        onClicked: row.capsule.click()

        Plate {
            anchors.fill: parent
            radius: width / 2
            color: button.pressed ? DarkUI.segmentFill : CapsuleTokens.roundChipFill
            edge: row.capsule.idlePrompt ? Tint.alpha(row.tint, CapsuleTokens.ringOpacity)
                                         : DarkUI.clear
        }

        KitIcon {
            anchors.centerIn: parent
            visible: row.capsule.idlePrompt
            width: CapsuleTokens.playGlyph
            height: CapsuleTokens.playGlyph
            name: "play"
            color: CapsuleTokens.glyph
        }

        Plate {
            anchors.centerIn: parent
            visible: !row.capsule.idlePrompt
            width: CapsuleTokens.stopGlyph
            height: CapsuleTokens.stopGlyph
            radius: DarkUI.radiusTiny
            color: CapsuleTokens.glyph
        }

        FocusRing {
            shown: button.ringed
            controlRadius: button.width / 2
        }
    }
}
