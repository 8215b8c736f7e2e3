// An alert: what happened, what it means, and its buttons.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Alert
import Vantle.Kit

FocusScope {
    id: view

    required property AlertModel model

    implicitWidth: DarkUI.cardWidth
    implicitHeight: texts.y + texts.height + buttonRow.height + 2 * DarkUI.space20
    focus: true

    Accessible.role: Accessible.AlertMessage
    Accessible.name: view.model.message
    Accessible.description: view.model.informativeText

    Keys.onEscapePressed: view.model.dismiss()

    Column {
        id: texts
        x: DarkUI.space20
        y: DarkUI.space6
        width: parent.width - 2 * DarkUI.space20
        spacing: DarkUI.space8

        DarkText {
            width: parent.width
            text: view.model.message
            role: DarkUI.cardTitle
            wrapMode: Text.Wrap
        }

        DarkText {
            width: parent.width
            text: view.model.informativeText
            color: DarkUI.textSecondary
            wrapMode: Text.Wrap
        }
    }

    Row {
        id: buttonRow
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: DarkUI.space20
        spacing: DarkUI.space8
        layoutDirection: Qt.RightToLeft

        Repeater {
            model: view.model.buttons

            KitButton {
                required property string modelData
                required property int index
                text: modelData
                kind: index === 0 ? KitButton.Primary : KitButton.Secondary
                focus: index === 0
                onClicked: view.model.choose(index)
            }
        }
    }
}
