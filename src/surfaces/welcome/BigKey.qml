// A large keycap.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Item {
    id: key

    required property string sign // sign or name: "B", "Super"
    property bool lit: false

    implicitWidth: WelcomeTokens.key
    implicitHeight: WelcomeTokens.key

    Plate {
        anchors.fill: parent
        radius: DarkUI.radiusFloating
        color: key.lit ? Tint.alpha(DarkUI.accent, WelcomeTokens.litSide) : WelcomeTokens.keySide
    }

    Plate {
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

    DarkText {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -DarkUI.hairlineWidth
        text: key.sign
        role: text.length > 1 ? WelcomeTokens.keyWord : WelcomeTokens.keySign
        Accessible.ignored: true
    }
}
