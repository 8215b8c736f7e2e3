// A mode with buttons to rename and remove it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: tag

    required property string skillId
    required property string name
    required property int hexRGB
    required property bool deletable
    signal renameWanted
    signal removeWanted

    // Takes the focus back from the rename field.
    function takeBack(): void {
        rename.focusByKeyboard();
    }
    function takeKeyboard(): void {
        (remove.visible ? remove : rename).forceActiveFocus(Qt.OtherFocusReason);
    }

    radius: DarkUI.radiusTile
    color: DarkUI.cardFill
    edge: DarkUI.hairline
    Accessible.role: Accessible.ListItem
    Accessible.name: name

    FlatDot {
        x: DarkUI.space14
        anchors.verticalCenter: parent.verticalCenter
        width: WelcomeTokens.tagDot
        height: WelcomeTokens.tagDot
        color: Tint.fromHex(tag.hexRGB)
    }

    DarkText {
        anchors.left: parent.left
        anchors.leftMargin: 33
        anchors.right: rename.left
        anchors.rightMargin: DarkUI.space4
        anchors.verticalCenter: parent.verticalCenter
        text: tag.name
        role: WelcomeTokens.name
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    DarkIconButton {
        id: rename
        anchors.right: remove.left
        anchors.rightMargin: DarkUI.space2
        anchors.verticalCenter: parent.verticalCenter
        name: qsTr("Rename %1").arg(KitText.isolated(tag.name))
        icon: "pencil"
        iconSize: DarkUI.space14
        iconColor: DarkUI.iconStrip
        onClicked: tag.renameWanted()
    }

    DarkIconButton {
        id: remove
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space8
        anchors.verticalCenter: parent.verticalCenter
        visible: tag.deletable
        name: qsTr("Remove %1").arg(KitText.isolated(tag.name))
        icon: "close"
        iconSize: DarkUI.space12
        iconColor: DarkUI.iconStrip
        onClicked: tag.removeWanted()
        Keys.onMenuPressed: menu.openAt(remove, 0)
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: menu.openAt(remove, -1)
    }

    DarkMenu {
        id: menu
        name: tag.name

        DarkMenuRow {
            text: qsTr("Rename %1").arg(KitText.isolated(tag.name))
            onTriggered: {
                menu.close();
                tag.renameWanted();
            }
        }
        DarkMenuRow {
            visible: tag.deletable
            text: qsTr("Delete %1").arg(KitText.isolated(tag.name))
            danger: true
            onTriggered: {
                menu.close();
                tag.removeWanted();
            }
        }
    }
}
