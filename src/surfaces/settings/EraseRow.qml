// The erase button with its confirmation.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

FocusScope {
    id: row

    required property SettingsView model
    readonly property bool confirming: model.confirmingErase
    readonly property string question: model.eraseQuestion
    readonly property real belowQuestion: 5

    implicitHeight: column.y + column.height + DarkUI.space14

    // Moves the focus with its ring to the button that replaces the focused one.
    function give(button: KitControl, byKeyboard: bool): void {
        if (byKeyboard)
            button.focusByKeyboard();
        else
            button.forceActiveFocus(Qt.OtherFocusReason);
    }
    function ask(): void {
        const byKeyboard = erase.keyboardFocus;
        model.askToErase();
        give(cancel, byKeyboard);
    }
    function cancelled(): void {
        const hadFocus = row.activeFocus;
        const byKeyboard = cancel.keyboardFocus || confirm.keyboardFocus;
        model.cancelErase();
        if (hadFocus)
            give(erase, byKeyboard);
    }
    function confirmed(): void {
        const byKeyboard = confirm.keyboardFocus;
        model.confirmErase();
        give(erase, byKeyboard);
    }

    DarkDivider {
        x: DarkUI.space16
        width: parent.width - 2 * x
    }

    Column {
        id: column
        x: DarkUI.space16
        y: DarkUI.space14 + DarkUI.hairlineWidth
        width: parent.width - 2 * x

        DarkText {
            visible: row.confirming
            bottomPadding: -role.leading + row.belowQuestion
            text: row.question
            role: DarkUI.bodyMedium
            Accessible.role: Accessible.AlertMessage
        }

        SettingsCaption {
            width: parent.width
            text: row.model.caption(SettingsView.EraseRow)
        }

        Item {
            width: parent.width
            height: DarkUI.space12 + DarkUI.buttonHeight

            DarkDangerButton {
                id: erase
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                visible: !row.confirming
                focus: true
                text: row.model.action(SettingsView.EraseRow)
                help: row.model.help(SettingsView.EraseRow)
                role: DarkUI.captionStrong
                Accessible.description: row.model.caption(SettingsView.EraseRow)
                onClicked: row.ask()
            }

            Row {
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                visible: row.confirming
                spacing: DarkUI.space8

                DarkSecondaryButton {
                    id: cancel
                    text: qsTr("Cancel")
                    Accessible.description: row.question
                    onClicked: row.cancelled()
                }

                DarkDangerButton {
                    id: confirm
                    text: qsTr("Erase")
                    Accessible.description: row.question
                    onClicked: row.confirmed()
                }
            }
        }

        SettingsFeedback {
            width: parent.width
            topPadding: role.leading + DarkUI.space6
            failed: !row.model.eraseSucceeded
            text: row.confirming ? "" : row.model.eraseStatus
        }
    }
}
