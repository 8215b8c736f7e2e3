// What a note offers to who is at it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Row {
    id: buttons

    required property KitControl row // that they stand in
    signal copyWanted
    signal editWanted

    spacing: DarkUI.space4

    component RowButton: DarkIconButton {
        help: name
        iconSize: DarkUI.space14
        // What has the focus can't leave the order of the Tab key.
        activeFocusOnTab: buttons.row.activeFocusOnTab || activeFocus
    }

    RowButton {
        name: qsTr("Copy this note")
        icon: "copy"
        onClicked: {
            if (keyboardFocus)
                buttons.row.focusByKeyboard(); // the word that comes in its place takes none
            buttons.copyWanted();
        }
    }

    RowButton {
        name: qsTr("Edit this note")
        icon: "pencil"
        onClicked: buttons.editWanted()
    }
}
