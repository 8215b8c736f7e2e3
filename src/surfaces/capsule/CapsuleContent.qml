// What the open capsule shows: the row, the chips of the skills, the row that adds one.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit

Item {
    id: content

    required property NotchCapsule capsule

    visible: opacity > 0
    opacity: 0

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

    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: content.capsule.click()
    }

    CapsuleRow {
        width: parent.width
        height: CapsuleTokens.rowHeight
        capsule: content.capsule
    }

    SkillChips {
        x: CapsuleTokens.inset
        y: CapsuleTokens.chipsTop
        width: content.capsule.chipsSize.width
        height: content.capsule.chipsSize.height
        capsule: content.capsule
    }

    AddSkillRowView {
        y: CapsuleTokens.chipsTop + content.capsule.chipsSize.height + CapsuleTokens.lineBelowChips
        width: parent.width
        visible: content.capsule.showAddRow
        onClicked: content.capsule.chipRequestsAdd()
    }
}
