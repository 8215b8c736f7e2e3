// The three keys of the shortcut.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Welcome

Item {
    id: picture

    required property WelcomeView model

    implicitHeight: WelcomeTokens.stageHeight
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("The keys Alt, Super and B")

    Row {
        anchors.centerIn: parent
        spacing: WelcomeTokens.keyGap

        BigKey {
            sign: qsTr("⌥")
        }
        BigKey {
            sign: qsTr("⌘")
        }
        BigKey {
            sign: "B"
            lit: true
        }
    }
}
