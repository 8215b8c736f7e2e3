// The skill chips at their layout positions.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit

Item {
    id: chips

    required property NotchCapsule capsule

    Repeater {
        model: chips.capsule.chips

        DarkChip {
            id: chip

            required property string skillId
            required property int index
            required property string name
            required property int hexRGB
            required property bool selected
            readonly property rect frame: chips.capsule.chipFrames[index]

            x: frame.x
            y: frame.y
            width: frame.width
            height: frame.height
            text: name
            role: DarkUI.capsuleChip
            dotColor: Tint.fromHex(hexRGB)
            selectedTint: selected ? dotColor : DarkUI.clear
            playOnHover: chips.capsule.idlePrompt
            choosable: !playOnHover
            onClicked: chips.capsule.pickSkill(skillId)
            onContextMenuRequested: byKey => chips.capsule.openMenu(skillId, byKey)
        }
    }
}
