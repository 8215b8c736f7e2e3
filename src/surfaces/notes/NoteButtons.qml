// The buttons of a note, for pointer and keyboard.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Row {
    id: buttons

    required property KitControl row // the row that contains them
    signal copyWanted
    signal editWanted

    spacing: DarkUI.space4

    component RowButton: DarkIconButton {
        help: name
        iconSize: DarkUI.space14
        // The focused item must stay in the Tab order.
        activeFocusOnTab: buttons.row.activeFocusOnTab || activeFocus
    }

    RowButton {
        name: qsTr("Copy this note")
        icon: "copy"
        onClicked: {
            if (keyboardFocus)
                buttons.row.focusByKeyboard(); // the text that replaces it takes no focus
            buttons.copyWanted();
        }
    }

    RowButton {
        name: qsTr("Edit this note")
        icon: "pencil"
        onClicked: buttons.editWanted()
    }
}
