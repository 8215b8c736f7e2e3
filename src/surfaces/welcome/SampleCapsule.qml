// The open capsule in a running session, with the pointer on another mode.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit
import Vantle.Welcome

Item {
    id: sample

    required property WelcomeSamples samples
    readonly property NotchCapsule capsule: samples.capsule

    width: capsule.openFrame.width
    height: capsule.rowViewHeight

    DarkShadow {
        anchors.fill: parent
        level: DarkUI.shadowCapsule
        radius: DarkUI.radiusFloating
    }

    Item {
        anchors.fill: parent
        clip: true

        Plate {
            y: -radius
            width: parent.width
            height: parent.height + radius
            radius: DarkUI.radiusFloating
            color: DarkUI.capsuleGround
        }
    }

    CapsuleRow {
        width: parent.width
        height: CapsuleTokens.rowHeight
        capsule: sample.capsule
        still: true
    }

    SkillChips {
        id: chips
        x: CapsuleTokens.inset
        y: CapsuleTokens.chipsTop
        capsule: sample.capsule
    }

    SvgPicture {
        id: pointer
        visible: false
        width: WelcomeTokens.pointerWidth
        height: WelcomeTokens.pointerHeight
        source: "qrc:/qt/qml/Vantle/Welcome/pictures/pointer.svg"
    }

    Component.onCompleted: {
        const chip = chips.children[samples.hoveredChip] as DarkChip;
        if (!chip)
            return;
        chip.hovered = true;
        // Behind the name, so that both can be read.
        const place = chip.mapToItem(sample, chip.width - DarkUI.space8, chip.height / 2);
        pointer.x = place.x;
        pointer.y = place.y;
        pointer.visible = true;
    }
}
