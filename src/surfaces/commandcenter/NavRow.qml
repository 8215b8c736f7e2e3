// A row that opens a window.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: row

    required property string title
    property string shortcut // as displayed; empty for none
    property string key // with ⌘ or Ctrl; empty for none

    implicitHeight: DarkUI.navRowHeight
    name: title
    Accessible.description: KitText.spoken(shortcut)

    Plate {
        id: ground
        anchors.fill: parent
        radius: DarkUI.radiusButton
        color: row.pressed ? DarkUI.fillHover : row.hovered ? DarkUI.navHover : DarkUI.clear

        Behavior on color {
            ColorAnimation {
                duration: row.stateTime
                easing.type: Easing.OutCubic
            }
        }
    }

    DarkText {
        anchors.left: parent.left
        anchors.leftMargin: DarkUI.space10
        anchors.verticalCenter: parent.verticalCenter
        text: row.title
        role: DarkUI.bodyMedium
        Accessible.ignored: true
    }
    DarkText {
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space10
        anchors.verticalCenter: parent.verticalCenter
        text: row.shortcut
        role: DarkUI.caption
        color: DarkUI.textTertiary
        Accessible.ignored: true
    }

    FocusRing {
        shown: row.ringed
        controlRadius: ground.radius
    }

    Shortcut {
        sequences: ["Ctrl+" + row.key, "Meta+" + row.key]
        enabled: row.key !== ""
        onActivated: row.clicked()
    }
}
