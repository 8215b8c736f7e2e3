// The card that offers to keep a session interrupted by a crash.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Cards
import Vantle.Kit
import Vantle.Panel

FloatingSurface {
    id: view

    required property RecoveryNoticeModel model

    groundHeight: actions.y + actions.height + DarkUI.space20

    Accessible.role: Accessible.Dialog
    Accessible.name: view.model.title
    Accessible.description: view.model.body

    Keys.onReturnPressed: view.model.keep()
    Keys.onEnterPressed: view.model.keep()

    Column {
        id: said
        x: DarkUI.space20
        y: DarkUI.space20
        width: parent.width - 2 * DarkUI.space20
        spacing: DarkUI.space8

        DarkText {
            width: parent.width
            text: view.model.title
            role: DarkUI.cardTitle
        }

        DarkText {
            width: parent.width
            text: view.model.styledBody(DarkUI.textPrimary)
            textFormat: Text.StyledText
            color: DarkUI.textSecondary
            wrapMode: Text.Wrap
            Accessible.name: view.model.body
        }
    }

    Item {
        id: actions
        x: DarkUI.space20
        y: said.y + said.height + DarkUI.space16 + DarkUI.space2
        width: said.width
        height: keep.height

        CardHelp {
            anchors.left: parent.left
            anchors.right: discard.left
            anchors.rightMargin: DarkUI.space14
            anchors.verticalCenter: parent.verticalCenter
            help: keep.hovered || keep.ringed ? view.model.keepHelp
                : discard.hovered || discard.ringed ? view.model.discardHelp : ""
        }

        DarkSecondaryButton {
            id: discard
            anchors.right: keep.left
            anchors.rightMargin: DarkUI.space8
            text: qsTr("Discard")
            Accessible.description: view.model.discardHelp
            onClicked: view.model.discard()
        }

        DarkPrimaryButton {
            id: keep
            anchors.right: parent.right
            width: Math.ceil(implicitWidth) // whole px, for sharp edges
            text: qsTr("Keep")
            Accessible.description: view.model.keepHelp
            Accessible.defaultButton: true
            onClicked: view.model.keep()
        }
    }
}
