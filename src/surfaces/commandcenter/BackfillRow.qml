// Buttons that credit confirmed time before now.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: row

    required property list<int> choices // minutes
    signal chosen(int minutes)

    implicitHeight: DarkUI.space12 + inside.height

    component BackfillChip: KitPressable {
        id: chip

        required property int minutes

        implicitWidth: DarkUI.backfillChipWidth
        implicitHeight: DarkUI.chipHeight
        name: qsTr("%1 min").arg(minutes)
        Accessible.description: question.Accessible.description
        onClicked: row.chosen(minutes)

        GlassChipBackground {
            id: ground
            anchors.fill: parent
            hovering: chip.hovered
            pressed: chip.pressed
        }
        DarkText {
            anchors.centerIn: parent
            text: chip.minutes
            role: DarkUI.captionMedium
            Accessible.ignored: true
        }
        FocusRing {
            shown: chip.ringed
            controlRadius: ground.radius
        }
    }

    Item {
        id: inside
        y: DarkUI.space12
        width: parent.width
        height: Math.max(DarkUI.largeChipHeight, question.height)

        DarkText {
            id: question
            anchors.left: parent.left
            anchors.right: group.left
            anchors.rightMargin: DarkUI.space8
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Started earlier?")
            role: DarkUI.caption
            color: DarkUI.textSecondary
            wrapMode: Text.Wrap
            Accessible.description: qsTr("Credit time back, only if this Mac was really active.")
        }

        ArrowGroup {
            id: group
            anchors.right: unit.left
            anchors.rightMargin: DarkUI.space8
            anchors.verticalCenter: parent.verticalCenter
            width: chips.width
            height: DarkUI.chipHeight
            list: chips
            Accessible.name: question.text
            Accessible.description: question.Accessible.description

            Row {
                id: chips
                spacing: DarkUI.chipGap

                Repeater {
                    model: row.choices
                    onItemAdded: group.refresh()
                    onItemRemoved: group.refresh()

                    BackfillChip {
                        required property int modelData
                        minutes: modelData
                    }
                }
            }
        }

        DarkText {
            id: unit
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("min")
            role: DarkUI.caption
            color: DarkUI.textTertiary
            Accessible.ignored: true
        }
    }
}
