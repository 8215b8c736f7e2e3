// The context menu of a chip.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

DarkMenuPanel {
    id: menu

    required property string skillName
    signal renameRequested
    signal recolorRequested
    signal deleteRequested

    name: skillName

    DarkMenuRow {
        text: qsTr("Rename…")
        onTriggered: menu.renameRequested()
    }
    DarkMenuRow {
        text: qsTr("Change color…")
        onTriggered: menu.recolorRequested()
    }
    DarkMenuSeparator {}
    DarkMenuRow {
        text: qsTr("Delete %1").arg(KitText.isolated(menu.skillName))
        danger: true
        onTriggered: menu.deleteRequested()
    }
}
