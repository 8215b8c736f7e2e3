// A key as it stands on a keyboard.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Item {
    id: key

    required property string sign
    property string word
    property bool lit: false

    implicitWidth: WelcomeTokens.key
    implicitHeight: WelcomeTokens.key

    Rectangle {
        anchors.fill: parent
        radius: DarkUI.radiusFloating
        color: key.lit ? Tint.alpha(DarkUI.accent, WelcomeTokens.litSide) : WelcomeTokens.keySide
    }

    Rectangle {
        width: parent.width
        height: parent.height - WelcomeTokens.keyFront
        radius: DarkUI.radiusFloating
        color: key.lit ? Tint.alpha(DarkUI.accent, WelcomeTokens.litTop) : WelcomeTokens.keyTop
    }

    Plate {
        anchors.fill: parent
        radius: DarkUI.radiusFloating
        color: DarkUI.clear
        edge: key.lit ? DarkUI.accent : DarkUI.keycapEdge
    }

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -DarkUI.hairlineWidth
        spacing: DarkUI.space4

        DarkText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: key.sign
            role: WelcomeTokens.keySign
            Accessible.ignored: true
        }
        DarkText {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            text: key.word
            role: DarkUI.caption
            color: DarkUI.textTertiary
            Accessible.ignored: true
        }
    }
}
