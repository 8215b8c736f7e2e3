// A small button with an icon, and a name for screen readers.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: button

    required property string icon
    property real iconSize: DarkUI.iconSize
    property real radius: DarkUI.radiusSmall
    property color iconColor: DarkUI.iconPrimary
    property color fill: DarkUI.clear
    property color fillHover: DarkUI.quietHover
    property color fillPressed: DarkUI.fillPressed

    implicitWidth: DarkUI.iconButtonSize
    implicitHeight: DarkUI.iconButtonSize

    Plate {
        anchors.fill: parent
        radius: button.radius
        color: button.pressed ? button.fillPressed : button.hovered ? button.fillHover : button.fill

        Behavior on color {
            ColorAnimation {
                duration: button.stateTime
                easing.type: Easing.OutCubic
            }
        }
    }

    KitIcon {
        anchors.centerIn: parent
        width: button.iconSize
        height: button.iconSize
        name: button.icon
        color: button.enabled ? button.iconColor : DarkUI.iconDisabled
    }

    FocusRing {
        shown: button.ringed
        controlRadius: button.radius
    }
}
