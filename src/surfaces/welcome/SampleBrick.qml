// The brick in the bar of a picture.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Item {
    id: brick

    property bool lit: false
    property real glow: 1

    implicitWidth: WelcomeTokens.brickPlaceWidth
    implicitHeight: WelcomeTokens.brickPlaceHeight

    SoftGlow {
        anchors.fill: parent
        visible: brick.lit
        radius: DarkUI.radiusSmall
        strength: brick.glow
    }

    Plate {
        anchors.fill: parent
        visible: brick.lit
        radius: DarkUI.radiusSmall
        color: Tint.alpha(DarkUI.accent, DarkUI.dangerEdgeOpacity)
        edge: DarkUI.accent
    }

    SvgPicture {
        anchors.centerIn: parent
        width: WelcomeTokens.brickSign
        height: WelcomeTokens.brickSign
        source: "qrc:/qt/qml/Vantle/Welcome/pictures/brick.svg"
    }
}
