// The button that closes the editor with what was edited.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: button

    required property string text

    implicitWidth: label.implicitWidth + 2 * DarkUI.space14
    implicitHeight: DarkUI.popoverButtonHeight
    name: text

    Rectangle {
        id: ground
        anchors.fill: parent
        radius: DarkUI.radiusSmall
        color: Tint.alpha(DarkUI.accent, !button.enabled ? DarkUI.popoverCommitDisabledOpacity
                                       : button.pressed ? DarkUI.popoverCommitPressedOpacity
                                                        : DarkUI.popoverCommitOpacity)
    }

    DarkText {
        id: label
        anchors.centerIn: parent
        text: button.text
        role: DarkUI.bodyStrong
        color: button.enabled ? DarkUI.textPrimary : DarkUI.textDisabled
        Accessible.ignored: true
    }

    FocusRing {
        shown: button.ringed
        controlRadius: ground.radius
    }
}
