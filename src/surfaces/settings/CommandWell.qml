// A command for a shell on one line that scrolls sideways, with a button that copies it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

DarkFieldWell {
    id: well

    required property string command
    required property string advice // what the command is for; read out with the button
    required property bool copied
    readonly property real step: 48 // px an arrow key scrolls
    // What is seen through the well: it lies on a card.
    readonly property color ground: Qt.tint(Qt.tint(DarkUI.windowGround, DarkUI.cardFill), color)
    signal copyWanted

    minHeight: DarkUI.editorFieldHeight
    focused: stop.keyboardFocus

    TypeRole {
        id: mono
        family: "monospace"
        size: DarkUI.caption.size
        line: DarkUI.caption.line
    }

    KitControl {
        id: stop

        readonly property real most: Math.max(0, line.contentWidth - line.width)

        function scrollTo(x: real): void {
            line.contentX = Math.max(0, Math.min(x, most));
        }

        x: DarkUI.fieldPadding
        width: ends.x - DarkUI.space8 - x
        height: parent.height
        activeFocusOnTab: true
        Accessible.role: Accessible.StaticText
        Accessible.name: well.command
        Accessible.focusable: true

        Keys.onLeftPressed: scrollTo(line.contentX - well.step)
        Keys.onRightPressed: scrollTo(line.contentX + well.step)
        Keys.onPressed: event => {
            event.accepted = true;
            if (event.key === Qt.Key_Home)
                scrollTo(0);
            else if (event.key === Qt.Key_End)
                scrollTo(most);
            else if (event.matches(StandardKey.Copy))
                well.copyWanted();
            else
                event.accepted = false;
        }

        Flickable {
            id: line
            anchors.fill: parent
            contentWidth: words.width
            contentHeight: height
            flickableDirection: Flickable.HorizontalFlick
            boundsBehavior: Flickable.StopAtBounds
            clip: true

            DarkText {
                id: words
                anchors.verticalCenter: parent.verticalCenter
                text: well.command
                role: mono
                Accessible.ignored: true
            }
        }

        component Fade: EdgeFade {
            width: DarkUI.space24
            height: words.height
            anchors.verticalCenter: parent.verticalCenter
            ground: well.ground
        }

        Fade {
            edge: Qt.LeftEdge
            visible: !line.atXBeginning
        }

        Fade {
            anchors.right: parent.right
            edge: Qt.RightEdge
            visible: !line.atXEnd
        }
    }

    Row {
        id: ends
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space4
        anchors.verticalCenter: parent.verticalCenter
        spacing: DarkUI.space4

        SettingsFeedback {
            anchors.verticalCenter: parent.verticalCenter
            text: well.copied ? qsTr("Copied") : ""
        }

        DarkIconButton {
            name: qsTr("Copy the command")
            help: name
            icon: "copy"
            iconSize: DarkUI.iconMedium
            Accessible.description: well.advice + " " + well.command
            onClicked: well.copyWanted()
        }
    }
}
