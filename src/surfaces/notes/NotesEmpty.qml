// The empty state of the notes window.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    Column {
        anchors.centerIn: parent
        // Optically centred in the window, including its title strip.
        anchors.verticalCenterOffset: -DarkUI.stripHeight / 2 - DarkUI.space14
        spacing: DarkUI.space8

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: DarkUI.space14
            bottomPadding: DarkUI.space14

            Repeater {
                model: 3
                GlassDot {
                    width: DarkUI.iconSize
                    height: DarkUI.iconSize
                    filled: false
                }
            }
        }

        DarkText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("No notes yet")
            role: DarkUI.titleMWide
            Accessible.role: Accessible.Heading
        }

        DarkText {
            anchors.horizontalCenter: parent.horizontalCenter
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("When you stop a session, jot one line about what you did.\n"
                       + "They collect here, newest first.")
            color: DarkUI.textSecondary
        }
    }
}
