// The card that asks which skill an unknown application belongs to.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Cards
import Vantle.Kit
import Vantle.Panel

FloatingSurface {
    id: view

    required property TagPromptModel model

    groundHeight: ignore.y + ignore.height + DarkUI.space14

    Accessible.role: Accessible.Dialog
    Accessible.name: view.model.headline
    Accessible.description: view.model.subtitle

    Keys.onEscapePressed: view.model.dismiss()

    Column {
        id: asked
        x: DarkUI.space20
        y: DarkUI.space20
        width: parent.width - 2 * DarkUI.space20
        spacing: DarkUI.space4

        DarkText {
            width: close.x - DarkUI.space12 - asked.x
            text: view.model.headline
            role: DarkUI.cardTitle
            wrapMode: Text.Wrap
        }

        DarkText {
            width: parent.width
            text: view.model.subtitle
            color: DarkUI.textSecondary
            wrapMode: Text.Wrap
        }
    }

    TagChipFlow {
        id: chips
        x: asked.x
        y: asked.y + asked.height + DarkUI.space16
        width: asked.width
        focus: true
        choices: view.model.choices
        onPicked: index => view.model.pick(index)
    }

    KitButton {
        kind: KitButton.Text
        id: ignore
        x: asked.x
        y: chips.y + chips.height + DarkUI.space10
        text: view.model.ignoreText
        Accessible.description: view.model.ignoreHelp
        onClicked: view.model.ignore()
    }

    CardHelp {
        anchors.left: ignore.right
        anchors.leftMargin: DarkUI.space20
        anchors.right: asked.right
        anchors.verticalCenter: ignore.verticalCenter
        horizontalAlignment: Text.AlignRight
        help: ignore.hovered || ignore.ringed ? view.model.ignoreHelp
            : close.hovered || close.ringed ? close.name : ""
    }

    DarkCloseButton {
        id: close
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space16
        y: DarkUI.space16
        name: qsTr("Not now")
        onClicked: view.model.dismiss()
    }
}
