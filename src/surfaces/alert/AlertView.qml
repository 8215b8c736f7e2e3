// An alert: what happened, what it means, and the buttons.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Alert
import Vantle.Kit

Rectangle {
    id: view

    required property AlertModel model

    implicitWidth: DarkUI.cardWidth
    implicitHeight: texts.height + buttonRow.height + 3 * DarkUI.space20
    color: DarkUI.base

    Accessible.role: Accessible.AlertMessage
    Accessible.name: view.model.message
    Accessible.description: view.model.informativeText

    Keys.onEscapePressed: view.model.dismiss()

    Column {
        id: texts
        x: DarkUI.space20
        y: DarkUI.space20
        width: parent.width - 2 * DarkUI.space20
        spacing: DarkUI.space8

        Text {
            width: parent.width
            text: view.model.message
            color: DarkUI.textPrimary
            wrapMode: Text.Wrap
            lineHeightMode: Text.FixedHeight
            lineHeight: DarkUI.cardTitleLine
            font.family: DarkUI.displayFamily
            font.pixelSize: DarkUI.cardTitleSize
            font.weight: Font.DemiBold
            font.letterSpacing: DarkUI.titleTracking * DarkUI.cardTitleSize
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Text {
            width: parent.width
            text: view.model.informativeText
            color: DarkUI.textSecondary
            wrapMode: Text.Wrap
            lineHeightMode: Text.FixedHeight
            lineHeight: DarkUI.bodyLine
            font.family: DarkUI.textFamily
            font.pixelSize: DarkUI.bodySize
            Accessible.role: Accessible.StaticText
            Accessible.name: text
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
                primary: index === 0
                focus: index === 0
                onClicked: view.model.choose(index)
            }
        }
    }
}
