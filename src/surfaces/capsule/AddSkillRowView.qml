// The row below the chips that adds a skill.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit

KitPressable {
    id: row

    implicitHeight: CapsuleTokens.addRowHeight + DarkUI.hairlineWidth
    name: qsTr("New skill")
    Accessible.description: qsTr("Add a skill")

    Rectangle {
        x: CapsuleTokens.inset
        width: parent.width - 2 * CapsuleTokens.inset
        height: DarkUI.hairlineWidth
        color: DarkUI.hairline
    }

    Plate {
        id: square
        x: CapsuleTokens.inset
        y: DarkUI.hairlineWidth + (CapsuleTokens.addRowHeight - height) / 2
        width: CapsuleTokens.addSquare
        height: CapsuleTokens.addSquare
        radius: DarkUI.radiusSegment
        color: row.pressed ? DarkUI.segmentFill
             : row.hovered ? DarkUI.switchTrack : CapsuleTokens.addSquareFill

        Behavior on color {
            ColorAnimation {
                duration: row.stateTime
                easing.type: Easing.OutCubic
            }
        }

        KitIcon {
            anchors.centerIn: parent
            width: DarkUI.iconSmall
            height: DarkUI.iconSmall
            name: "plus"
            color: DarkUI.textPrimary
        }

        FocusRing {
            shown: row.ringed
            controlRadius: square.radius
        }
    }

    DarkText {
        anchors.left: square.right
        anchors.leftMargin: DarkUI.space10
        anchors.verticalCenter: square.verticalCenter
        text: row.name
        role: DarkUI.captionMedium
        color: row.hovered ? DarkUI.textPrimary : CapsuleTokens.addName
        Accessible.ignored: true
    }
}
