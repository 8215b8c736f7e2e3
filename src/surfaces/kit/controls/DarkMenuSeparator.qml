// A separator between groups of menu rows.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    implicitHeight: DarkUI.space8 + DarkUI.hairlineWidth

    DarkDivider {
        x: DarkUI.space10
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - 2 * DarkUI.space10
    }
}
