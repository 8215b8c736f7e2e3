// The chips of the skills, where the layout puts them.
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
            required property string skillName
            required property int hexRGB
            required property rect frame
            required property bool highlighted

            x: frame.x
            y: frame.y
            width: frame.width
            height: frame.height
            text: skillName
            role: DarkUI.capsuleChip
            dotColor: Tint.fromHex(hexRGB)
            selectedTint: highlighted ? Tint.fromHex(hexRGB) : DarkUI.clear
            playOnHover: chips.capsule.idlePrompt
            choosable: !playOnHover
            onClicked: chips.capsule.pickSkill(skillId)
            onContextMenuRequested: chips.capsule.openMenu(skillId)
        }
    }
}
