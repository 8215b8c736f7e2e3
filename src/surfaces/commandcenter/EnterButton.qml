// The wide start and stop button in the chosen mode's colour.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: button

    required property string text
    required property color accent
    property bool paused: false
    property real glow: 0

    function pulse(): void {
        pulsing.restart();
    }

    implicitHeight: DarkUI.wideButtonHeight
    name: text

    SequentialAnimation {
        id: pulsing

        NumberAnimation {
            target: button
            property: "glow"
            to: 1
            duration: DarkUI.pulseOnTime
            easing.type: Easing.InOutQuad
        }
        PauseAnimation {
            duration: 20 * Motion.pace
        }
        NumberAnimation {
            target: button
            property: "glow"
            to: 0
            duration: DarkUI.pulseOffTime
            easing.type: Easing.InOutQuad
        }
    }

    Item {
        anchors.fill: parent
        scale: 1 + (DarkUI.pulseScale - 1) * button.glow

        Plate {
            anchors.fill: parent
            anchors.margins: -DarkUI.space4 * button.glow
            visible: button.glow > 0
            radius: plate.radius + DarkUI.space4 * button.glow
            color: Tint.alpha(button.accent, DarkUI.pulseGlowOpacity * button.glow)
        }

        Plate {
            id: plate
            anchors.fill: parent
            radius: DarkUI.radiusWindow
            opacity: button.paused ? DarkUI.pausedOpacity : 1
            color: button.pressed ? Qt.darker(button.accent, 1.08)
                 : button.hovered ? Tint.lightened(button.accent, 0.15) : button.accent

            Behavior on color {
                ColorAnimation {
                    duration: button.stateTime
                    easing.type: Easing.OutCubic
                }
            }
        }

        KitIcon {
            anchors.right: label.left
            anchors.rightMargin: DarkUI.space6
            anchors.verticalCenter: parent.verticalCenter
            visible: button.paused
            name: "pause"
            color: label.color
        }

        DarkText {
            id: label
            readonly property real besideSign: button.paused ? DarkUI.iconSize + DarkUI.space6 : 0
            anchors.centerIn: parent
            anchors.horizontalCenterOffset: besideSign / 2
            width: Math.min(implicitWidth, parent.width - 2 * DarkUI.space14 - besideSign)
            text: button.text
            role: DarkUI.leadButton
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: DarkUI.small.size
            color: Tint.inkOn(button.accent)
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }

    FocusRing {
        shown: button.ringed
        controlRadius: plate.radius
    }
}
