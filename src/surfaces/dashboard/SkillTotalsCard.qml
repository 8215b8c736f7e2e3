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
    readonly property real room: height - 38 * DarkUI.textScale - detailHeight - DarkUI.space12

    readonly property int sockets: 6 // in an empty card

    heading: qsTr("Hours by skill")

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: card.middleOffset
        width: card.innerWidth - 2 * DarkUI.space16
        visible: card.model.skillTotals.length === 0
        spacing: DarkUI.space14

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: DarkUI.space8

            Repeater {
                model: card.sockets
                GlassDot {
                    width: DarkUI.iconSmall
                    height: DarkUI.iconSmall
                    filled: false
                }
            }
        }

        DarkText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("Your active skills will appear after the first session.")
            role: DarkUI.caption
            color: DarkUI.textTertiary
            wrapMode: Text.Wrap
        }
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
            // The bars end before the widest figure.
            readonly property real widestHours: {
                let most = 0;
                for (let i = 0; i < children.length; ++i)
                    most = Math.max(most, children[i].implicitWidth);
                return most;
            }

            Repeater {
                model: card.model.skillTotals
                onItemAdded: group.refresh()
                onItemRemoved: group.refresh()

                SkillTotalRow {
                    required property skillTotalLine modelData
                    width: card.innerWidth
                    height: card.pitch
                    line: modelData
                    hoursWidth: lines.widestHours
                }
            }
        }
    }
}
