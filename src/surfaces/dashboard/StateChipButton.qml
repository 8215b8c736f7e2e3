// What goes on, in the skill's colour; a press stops it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

KitPressable {
    id: chip

    required property DashboardView model

    implicitWidth: DarkUI.space12 + DarkUI.chipDot + DarkUI.space8 + label.implicitWidth
                   + DarkUI.buttonPadding
    implicitHeight: DarkUI.buttonHeight
    name: model.chipLabel
    help: qsTr("Stop the session")
    onClicked: model.toggle()

    Plate {
        anchors.fill: parent
        radius: DarkUI.radiusButton
        color: Tint.alpha(chip.model.chipColor, chip.pressed ? DarkUI.tintFillPressed
                                              : chip.hovered ? DarkUI.tintFillHover
                                                             : DarkUI.tintFill)
        edge: Tint.alpha(chip.model.chipColor, 0.70)
    }

    FlatDot {
        x: DarkUI.space12
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.chipDot
        height: DarkUI.chipDot
        color: chip.model.chipColor
        opacity: chip.model.isPaused ? 0.4 : 1
    }

    // As wide as the wider of its two texts, so that it does not move away under the pointer.
    DarkText {
        id: label
        x: DarkUI.space12 + DarkUI.chipDot + DarkUI.space8
        anchors.verticalCenter: parent.verticalCenter
        width: implicitWidth
        text: chip.hovered || chip.ringed ? chip.model.chipHoverText : chip.model.chipText
        role: DarkUI.bodyMedium
        Accessible.ignored: true
    }

    FocusRing {
        shown: chip.ringed
        controlRadius: DarkUI.radiusButton
    }
}
