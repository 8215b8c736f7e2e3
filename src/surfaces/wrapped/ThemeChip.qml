// A recurring word of the notes; not interactive.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: chip

    required property string text

    implicitWidth: Math.ceil(label.implicitWidth) + 2 * DarkUI.space12
    implicitHeight: DarkUI.largeChipHeight
    radius: height / 2
    color: DarkUI.cardFill
    edge: DarkUI.hairline

    DarkText {
        id: label
        anchors.centerIn: parent
        width: Math.min(implicitWidth, chip.width - 2 * DarkUI.space12)
        elide: Text.ElideRight
        text: chip.text
        role: DarkUI.captionMedium
    }
}
