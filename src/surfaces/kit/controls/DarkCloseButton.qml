// The round button that closes a card.
import QtQuick
import Vantle.Kit

DarkIconButton {
    implicitWidth: DarkUI.closeButtonSize
    implicitHeight: DarkUI.closeButtonSize
    name: qsTr("Close")
    icon: "close"
    iconSize: DarkUI.space10
    radius: DarkUI.closeButtonSize / 2
    fill: DarkUI.quietHover
    fillHover: DarkUI.fillPressed
    fillPressed: DarkUI.pageDot
}
