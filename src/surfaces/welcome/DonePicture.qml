// The program's icon.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Welcome

Item {
    id: picture

    required property WelcomeView model

    implicitHeight: WelcomeTokens.stageHeight

    SvgPicture {
        anchors.centerIn: parent
        width: WelcomeTokens.appIcon
        height: WelcomeTokens.appIcon
        source: "qrc:/vantle/kit/app-icon.svg"
    }
}
