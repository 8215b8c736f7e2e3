// The state without a match.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: area

    signal clearRequested

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -DarkUI.stripHeight / 2 - DarkUI.space36
        spacing: DarkUI.space14

        DarkText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Nothing matches that yet.")
            role: DarkUI.lead
            color: DarkUI.textSecondary
        }

        DarkSecondaryButton {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Clear the filters")
            onClicked: area.clearRequested()
        }
    }
}
