// The choice of the shortcut for one end of a session.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: line

    required property string title
    required property list<string> options
    required property int chosen
    signal activated(int choice)

    implicitHeight: picker.height

    DarkText {
        id: label
        anchors.verticalCenter: parent.verticalCenter
        text: line.title
        role: DarkUI.body
        color: DarkUI.textSecondary
        Accessible.ignored: true // the menu has the label
    }

    ChoiceMenu {
        id: picker
        anchors.right: parent.right
        width: Math.min(implicitWidth, line.width - label.width - DarkUI.space12)
        title: line.title
        options: line.options
        currentIndex: line.chosen
        quiet: line.chosen === 0
        onActivated: index => line.activated(index)
    }
}
