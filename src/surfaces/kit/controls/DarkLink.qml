// A text that links to another place.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: link

    required property string text
    property bool onTint: false // whether it stands on an accent tint
    property TypeRole role: DarkUI.captionMedium

    implicitWidth: label.implicitWidth
    implicitHeight: DarkUI.stripButtonSize // higher than the text, as a click target
    name: text
    cursorShape: Qt.PointingHandCursor
    Accessible.role: Accessible.Link

    DarkText {
        id: label
        anchors.verticalCenter: parent.verticalCenter
        text: link.text
        role: link.role
        color: link.onTint ? DarkUI.accentTextOnTint : DarkUI.accentText
        Accessible.ignored: true

        Rectangle {
            y: label.baselineOffset + DarkUI.space2
            visible: link.hovered || link.pressed
            width: label.width
            height: DarkUI.hairlineWidth
            color: label.color
        }
    }

    FocusRing {
        shown: link.ringed
        controlRadius: DarkUI.radiusBar
    }
}
