// An application, the skill that its time counts for, and a button to forget it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

Item {
    id: row

    required property SettingsView settings
    readonly property real rowHeight: 40

    required property string bundleId
    required property string name
    required property bool isAutomatic
    required property int choice
    required property bool isSkill
    required property color skillColor
    required property string menuLabel
    required property string forgetLabel

    implicitHeight: rowHeight

    DarkText {
        id: label
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, picker.x - DarkUI.space12
                                       - (row.isAutomatic ? DarkUI.space36 : 0))
        text: row.name
        role: DarkUI.bodyMedium
        elide: Text.ElideRight
    }

    KitIcon {
        id: sparkles
        anchors.left: label.right
        anchors.leftMargin: DarkUI.space10
        anchors.verticalCenter: parent.verticalCenter
        visible: row.isAutomatic
        width: DarkUI.iconMedium
        height: DarkUI.iconMedium
        name: "sparkles"
        color: DarkUI.accentText

        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("Categorized automatically on this Mac")
        Accessible.ignored: !visible

        HoverHandler {
            id: hover
        }

        HoverHelp {
            control: sparkles
            text: qsTr("Categorized automatically")
            pointed: hover.hovered && row.isAutomatic
        }
    }

    ChoiceMenu {
        id: picker
        anchors.right: forget.left
        anchors.rightMargin: DarkUI.space10
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, row.width / 2) // the application's name has precedence
        title: row.menuLabel
        options: row.settings.appChoices
        currentIndex: row.choice
        isSkill: row.isSkill
        skillColor: row.skillColor
        quiet: !row.isSkill
        onActivated: index => row.settings.chooseSkill(row.bundleId, index)
    }

    DarkIconButton {
        id: forget
        anchors.right: parent.right
        anchors.rightMargin: -DarkUI.space6 // aligns the icon with the text above
        anchors.verticalCenter: parent.verticalCenter
        name: row.forgetLabel
        help: row.forgetLabel
        icon: "close"
        iconSize: DarkUI.space12
        iconColor: DarkUI.iconStrip
        onClicked: row.settings.forgetApp(row.bundleId)
    }
}
