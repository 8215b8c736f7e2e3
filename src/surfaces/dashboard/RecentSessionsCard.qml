// The newest sessions, or an invitation to start the first one.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

DashboardCard {
    id: card

    required property DashboardView model

    heading: qsTr("Recent sessions")
    detail: model.recentText

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: card.middleOffset
        visible: card.model.recent.length === 0
        spacing: DarkUI.space10

        DarkPrimaryButton {
            anchors.horizontalCenter: parent.horizontalCenter
            // Kept under the focus; its text says what a press does now.
            text: card.model.isOpen ? qsTr("Stop Vantle") : qsTr("Start your first session")
            onClicked: card.model.toggle()
        }

        DarkText {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: card.model.hasShortcut
            text: qsTr("⌥⌘B works from anywhere")
            role: DarkUI.caption
            color: DarkUI.textTertiary
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

            Repeater {
                model: card.model.recent
                onItemAdded: group.refresh()
                onItemRemoved: group.refresh()

                SessionGroupRow {
                    required property recentLine modelData
                    width: card.innerWidth
                    line: modelData
                }
            }
        }
    }
}
