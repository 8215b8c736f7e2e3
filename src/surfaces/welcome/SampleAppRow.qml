// A sample application with the chip of its mode.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Item {
    id: row

    required property sampleApp app
    required property bool ruled // with a line above

    implicitHeight: WelcomeTokens.appRow

    DarkDivider {
        width: parent.width
        visible: row.ruled
    }

    Plate {
        anchors.verticalCenter: parent.verticalCenter
        width: WelcomeTokens.appTile
        height: WelcomeTokens.appTile
        radius: DarkUI.radiusSegment
        color: DarkUI.quietHover

        DarkText {
            anchors.centerIn: parent
            text: row.app.initial
            role: DarkUI.captionStrong
            color: DarkUI.textSecondary
        }
    }

    DarkText {
        x: WelcomeTokens.appTile + DarkUI.space12
        anchors.verticalCenter: parent.verticalCenter
        text: row.app.name
        role: WelcomeTokens.name
    }

    DarkChip {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: row.app.skillName
        dotColor: row.app.color
    }
}
