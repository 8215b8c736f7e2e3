// The capsule, open over a running session, with the pointer on another mode.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit
import Vantle.Welcome

SampleFrame {
    id: picture

    required property WelcomeView model
    readonly property WelcomeSamples samples: model.samples
    readonly property NotchCapsule capsule: samples.capsule

    function hover(): void {
        const chip = chips.children[samples.hoveredChip] as DarkChip;
        if (!chip)
            return;
        chip.hovered = true;
        pointer.place = chip.mapToItem(body, chip.width * 0.4, chip.height * 0.55);
    }

    implicitHeight: WelcomeTokens.stageHeight
    label: model.sampleLabel

    SampleDesk {
        anchors.fill: parent
        barHeight: WelcomeTokens.notchBar

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: body.width * scale
            height: body.height
            scale: 1

            Item {
                id: body
                width: picture.capsule.openFrame.width
                height: picture.capsule.rowViewHeight
                scale: Math.min(WelcomeTokens.notchScale,
                                (picture.width - 2 * DarkUI.space16) / width)
                anchors.horizontalCenter: parent.horizontalCenter
                transformOrigin: Item.Top

                DarkShadow {
                    anchors.fill: parent
                    level: DarkUI.shadowCapsule
                    radius: DarkUI.radiusFloating
                }

                Item {
                    anchors.fill: parent
                    clip: true

                    Rectangle {
                        y: -radius
                        width: parent.width
                        height: parent.height + radius
                        radius: DarkUI.radiusFloating
                        color: DarkUI.capsule
                    }
                }

                CapsuleRow {
                    width: parent.width
                    height: CapsuleTokens.rowHeight
                    capsule: picture.capsule
                }

                SkillChips {
                    id: chips
                    x: CapsuleTokens.inset
                    y: CapsuleTokens.chipsTop
                    capsule: picture.capsule
                }

                SvgPicture {
                    id: pointer

                    property point place

                    x: place.x
                    y: place.y
                    width: 13
                    height: 18
                    source: "qrc:/qt/qml/Vantle/Welcome/pictures/pointer.svg"
                }
            }
        }
    }

    Component.onCompleted: hover()
}
