// A push button. The primary one is the main action of its surface.
pragma ComponentBehavior: Bound
import QtQuick

Rectangle {
    id: button

    required property string text
    property bool primary: false
    signal clicked

    function colorFor(pressed: bool, hovered: bool): color {
        if (button.primary)
            return pressed ? DarkUI.accentPressed : hovered ? DarkUI.accentHover : DarkUI.accent;
        return pressed ? DarkUI.fillPressed : hovered ? DarkUI.fillHover : DarkUI.fill;
    }

    implicitWidth: label.implicitWidth + 2 * DarkUI.buttonPadding
    implicitHeight: DarkUI.buttonHeight
    radius: DarkUI.radiusButton
    color: colorFor(tap.pressed, hover.hovered)
    border.width: primary ? 0 : DarkUI.hairlineWidth
    border.color: DarkUI.hairline
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: button.clicked()

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Behavior on color {
        ColorAnimation {
            duration: DarkUI.hoverTime
            easing.type: Easing.OutCubic
        }
    }

    Text {
        id: label
        anchors.centerIn: parent
        text: button.text
        color: button.primary ? DarkUI.ink : DarkUI.t1
        font: (button.primary ? DarkUI.bodyStrong : DarkUI.bodyMedium).font
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -(DarkUI.focusWidth + DarkUI.focusGap)
        visible: button.activeFocus
        radius: button.radius + DarkUI.focusWidth + DarkUI.focusGap - 1
        color: "transparent"
        border.width: DarkUI.focusWidth
        border.color: DarkUI.focusRing
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap
        onTapped: button.clicked()
    }
}
