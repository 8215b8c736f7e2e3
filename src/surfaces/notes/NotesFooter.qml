// The footer: a summary of the shown notes, and above it a failed edit.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: footer

    required property string text
    required property string failure
    readonly property bool filled: text !== "" || failure !== ""
    readonly property real leastHeight: 40

    implicitHeight: filled ? Math.max(leastHeight, line.height + 2 * DarkUI.space10) : 0
    visible: filled

    Announcer {
        text: footer.failure
    }

    DarkDivider {
        width: parent.width
    }

    DarkText {
        id: line
        anchors.left: parent.left
        anchors.leftMargin: DarkUI.space28
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space28
        anchors.verticalCenter: parent.verticalCenter
        text: footer.failure !== "" ? footer.failure : footer.text
        role: DarkUI.caption
        color: footer.failure !== "" ? DarkUI.dangerText : DarkUI.textTertiary
        wrapMode: Text.Wrap
        Accessible.role: footer.failure !== "" ? Accessible.AlertMessage : Accessible.StaticText
    }
}
