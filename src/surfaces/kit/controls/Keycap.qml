// A keycap with the text of a key or combination.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: cap

    required property string text

    implicitWidth: label.implicitWidth + 2 * DarkUI.space6
    implicitHeight: DarkUI.keycapHeight
    radius: DarkUI.radiusKeycap
    color: DarkUI.rowHover
    edge: DarkUI.keycapEdge

    DarkText {
        id: label
        anchors.centerIn: parent
        text: cap.text
        role: DarkUI.smallMedium
        color: DarkUI.textSecondary
    }
}
