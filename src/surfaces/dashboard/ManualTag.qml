// The mark of manually logged time.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: tag

    implicitWidth: label.implicitWidth + 2 * DarkUI.space6
    implicitHeight: DarkUI.space16

    Plate {
        anchors.fill: parent
        radius: DarkUI.radiusTag
        color: DarkUI.clear
        edge: DarkUI.keycapEdge
    }

    DarkText {
        id: label
        anchors.centerIn: parent
        text: qsTr("manual")
        role: DarkUI.small
        color: DarkUI.textTertiary
        Accessible.ignored: true
    }

    HoverHandler {
        id: hover
    }

    HoverHelp {
        control: tag
        text: qsTr("Hand-typed. Stays on this Mac, never verified.")
        pointed: hover.hovered
    }
}
