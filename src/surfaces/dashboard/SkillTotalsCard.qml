// Hours by skill, most hours first.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

DashboardCard {
    id: card

    required property DashboardView model
    // Shrinks the rows until all fit.
    readonly property real pitch: Math.min(26 * DarkUI.textScale, room
                                               / Math.max(model.skillTotals.length, 1))
    readonly property real room: height - 38 * DarkUI.textScale - DarkUI.space12

    heading: qsTr("Hours by skill")

    DarkText {
        width: card.innerWidth
        visible: card.model.skillTotals.length === 0
        text: qsTr("Your active skills will appear after the first session.")
        role: DarkUI.caption
        color: DarkUI.textTertiary
        wrapMode: Text.Wrap
    }

    ArrowGroup {
        id: group
        width: card.innerWidth
        height: lines.height
        list: lines
        Accessible.role: Accessible.List
        Accessible.name: card.heading

        Column {
            id: lines

            Repeater {
                model: card.model.skillTotals
                onItemAdded: group.refresh()
                onItemRemoved: group.refresh()

                SkillTotalRow {
                    required property skillTotalLine modelData
                    width: card.innerWidth
                    height: card.pitch
                    line: modelData
                }
            }
        }
    }
}
