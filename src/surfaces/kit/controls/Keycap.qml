// A keycap with the text of a key or combination.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: cap

    required property string text

    implicitWidth: Math.ceil(label.implicitWidth) + 2 * DarkUI.space6
    implicitHeight: DarkUI.keycapHeight
    radius: DarkUI.radiusKeycap
    edge: DarkUI.keycapEdge

    DarkText {
        id: label
        anchors.verticalCenter: parent.verticalCenter
        x: DarkUI.space6
        text: cap.text
        role: DarkUI.keycap
        color: DarkUI.textSecondary
    }
}
