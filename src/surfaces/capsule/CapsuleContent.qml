// The content of the open capsule: the row, the skill chips, the row that adds one.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit

Item {
    id: content

    required property NotchCapsule capsule

    visible: opacity > 0
    opacity: 0

    // Whether a click there is for the capsule itself, not for a chip or the add row.
    function isGround(place: point): bool {
        const amongChips = chips.mapFromItem(content, place);
        if (chips.childAt(amongChips.x, amongChips.y))
            return false;
        return !addRow.visible || !addRow.contains(addRow.mapFromItem(content, place));
    }

    states: State {
        name: "open"
        when: content.capsule.expanded

        PropertyChanges {
            content.opacity: 1
        }
    }

    transitions: [
        Transition {
            to: "open"

            SequentialAnimation {
                PauseAnimation {
                    duration: DarkUI.capsuleRowDelay
                }
                NumberAnimation {
                    property: "opacity"
                    duration: DarkUI.capsuleRowTime
                    easing.type: Easing.OutCubic
                }
            }
        },
        Transition {
            NumberAnimation {
                property: "opacity"
                duration: DarkUI.capsuleRowOutTime
                easing.type: Easing.OutCubic
            }
        }
    ]

    Accessible.role: Accessible.Pane
    Accessible.name: content.capsule.toolTip

    CapsuleRow {
        width: parent.width
        height: CapsuleTokens.rowHeight
        capsule: content.capsule
    }

    SkillChips {
        id: chips
        x: CapsuleTokens.inset
        y: CapsuleTokens.chipsTop
        width: content.capsule.chipsSize.width
        height: content.capsule.chipsSize.height
        capsule: content.capsule
    }

    AddSkillRowView {
        id: addRow
        y: CapsuleTokens.chipsTop + content.capsule.chipsSize.height + CapsuleTokens.lineBelowChips
        width: parent.width
        visible: content.capsule.showAddRow
        onClicked: content.capsule.chipRequestsAdd()
    }
}
