// A switch. Shows `checked` and requests a change with toggled(); the owner of the state changes
// it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: toggle

    property bool checked: false
    signal toggled(bool checked)

    implicitWidth: DarkUI.switchWidth
    implicitHeight: DarkUI.switchHeight
    opacity: enabled ? 1 : DarkUI.disabledOpacity
    onClicked: toggled(!checked)

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onToggleAction: if (toggle.enabled) toggle.clicked()

    Plate {
        id: track
        anchors.fill: parent
        radius: height / 2
        color: toggle.checked ? toggle.hovered ? DarkUI.accentHover : DarkUI.accent
                              : DarkUI.switchTrack
        edge: toggle.checked ? DarkUI.clear : DarkUI.switchEdge

        Behavior on color {
            ColorAnimation {
                duration: DarkUI.switchTime
                easing.type: Easing.OutCubic
            }
        }
    }

    Plate {
        readonly property real inset: DarkUI.space2
        x: toggle.checked ? parent.width - width - inset : inset
        y: inset
        width: parent.height - 2 * inset
        height: width
        radius: height / 2
        color: toggle.checked ? DarkUI.knobFill : DarkUI.switchKnob

        Behavior on x {
            NumberAnimation {
                duration: DarkUI.switchTime
                easing.type: Easing.OutCubic
            }
        }
    }

    FocusRing {
        shown: toggle.ringed
        controlRadius: track.radius
    }
}
