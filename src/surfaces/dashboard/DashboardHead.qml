// The title, the ways to other windows, and the control that starts or stops a session.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

FocusScope {
    id: head

    required property DashboardView model

    implicitHeight: Math.max(34, actions.height)

    DarkText {
        id: title
        anchors.verticalCenter: parent.verticalCenter
        width: actions.x - DarkUI.space12
        text: qsTr("Your hours")
        role: DarkUI.titleL
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
    }

    Row {
        id: actions
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: DarkUI.space8

        DarkSecondaryButton {
            text: qsTr("Log time")
            onClicked: head.model.openQuickLog()
        }

        DarkSecondaryButton {
            text: qsTr("Wrapped")
            help: qsTr("A recap of your work, computed on this Mac")
            onClicked: head.model.openWrapped()
        }

        DarkPrimaryButton {
            visible: !head.model.isOpen
            focus: true
            text: qsTr("Start building")
            onClicked: head.model.toggle()
        }

        StateChipButton {
            visible: head.model.isOpen
            model: head.model
        }
    }
}
