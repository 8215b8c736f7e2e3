// The problem with the log.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: banner

    required property string text

    implicitHeight: Math.max(DarkUI.navRowHeight, message.height + 2 * DarkUI.space4)
    radius: DarkUI.radiusBanner
    color: Tint.alpha(DarkUI.warning, DarkUI.bannerFillOpacity)
    edge: Tint.alpha(DarkUI.warning, DarkUI.bannerEdgeOpacity)

    Announcer {
        text: banner.text
    }

    KitIcon {
        x: DarkUI.space14
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.iconSize
        height: DarkUI.iconSize
        name: "warning"
        color: DarkUI.warning
    }

    DarkText {
        id: message
        x: DarkUI.space14 + DarkUI.iconSize + DarkUI.space10
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - x - DarkUI.space14
        text: banner.text
        role: DarkUI.caption
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }
}
