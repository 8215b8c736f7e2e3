// The title strip of a window without the desktop's frame. Only the area behind it moves the
// window: with two requests a window manager would keep the pointer after the release. Children are
// placed left of the two round buttons.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: strip

    property string title // empty where the content starts with a title
    property bool minimisable: true
    default property alias content: inside.data
    signal closeRequested
    signal minimiseRequested

    implicitHeight: DarkUI.stripHeight

    DarkText {
        anchors.centerIn: parent
        visible: strip.title !== ""
        text: strip.title
        role: DarkUI.bodyMedium
        color: DarkUI.textSecondary
    }

    Item {
        id: inside
        anchors.left: parent.left
        anchors.right: buttons.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
    }

    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space8
        y: DarkUI.space6
        spacing: DarkUI.space4

        component StripButton: DarkIconButton {
            implicitWidth: DarkUI.stripButtonSize
            implicitHeight: DarkUI.stripButtonSize
            iconSize: DarkUI.space12
            iconColor: DarkUI.iconStrip
            radius: DarkUI.stripButtonSize / 2
            fillHover: DarkUI.stripHover
        }

        StripButton {
            visible: strip.minimisable
            name: qsTr("Minimise")
            icon: "minimise"
            onClicked: strip.minimiseRequested()
        }

        StripButton {
            name: qsTr("Close")
            icon: "close"
            onClicked: strip.closeRequested()
        }
    }
}
