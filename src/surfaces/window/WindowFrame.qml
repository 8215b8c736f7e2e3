// The frame of every window: ground, title strip, edges, and the view below the strip.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Window

Item {
    id: frame

    required property WindowShell shell
    required property string title // in the strip; empty where the view opens with one
    required property bool resizable
    required property bool rounded
    required property int minimumHeight // of the view; 0 means what it asks for
    required property url view
    required property QtObject model

    readonly property bool ready: loader.status === Loader.Ready
    readonly property int viewMinimum: resizable ? 0 : minimumHeight > 0 ? minimumHeight
                                                                         : loader.implicitHeight

    implicitWidth: loader.implicitWidth
    implicitHeight: loader.implicitHeight + DarkUI.stripHeight

    component StripButton: DarkIconButton {
        implicitWidth: DarkUI.stripButton
        implicitHeight: DarkUI.stripButton
        radius: DarkUI.stripButton / 2
        iconSize: DarkUI.space12
        iconColor: DarkUI.iconStrip
        fillHover: DarkUI.stripHover
    }

    Component.onCompleted: loader.setSource(frame.view, { "model": frame.model })

    Rectangle {
        anchors.fill: parent
        radius: frame.rounded ? DarkUI.radiusWindow : 0
        color: DarkUI.base
    }

    // Any empty place moves the window.
    MouseArea {
        property point pressedAt

        anchors.fill: parent
        onPressed: mouse => pressedAt = Qt.point(mouse.x, mouse.y)
        onPositionChanged: mouse => {
            const distance = Math.abs(mouse.x - pressedAt.x) + Math.abs(mouse.y - pressedAt.y);
            if (distance >= Application.styleHints.startDragDistance)
                frame.shell.beginMove();
        }
    }

    // Where the screen is too low for the view, it scrolls under the strip.
    Flickable {
        id: area
        y: DarkUI.stripHeight
        width: parent.width
        height: parent.height - y
        contentWidth: width
        contentHeight: loader.height
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: interactive

        Loader {
            id: loader
            width: area.width
            height: Math.max(area.height, frame.viewMinimum)
            focus: true
        }
    }

    DarkText {
        anchors.horizontalCenter: parent.horizontalCenter
        height: DarkUI.stripHeight
        verticalAlignment: Text.AlignVCenter
        text: frame.title
        role: DarkUI.bodyMedium
        color: DarkUI.t2
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space8
        y: DarkUI.space6
        spacing: DarkUI.space4

        StripButton {
            name: qsTr("Minimise")
            icon: "minimise"
            onClicked: frame.shell.minimise()
        }

        StripButton {
            name: qsTr("Close")
            icon: "close"
            onClicked: frame.shell.requestClose()
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: frame.rounded ? DarkUI.radiusWindow : 0
        color: "transparent"
        border.width: DarkUI.hairlineWidth
        border.color: DarkUI.windowEdge
    }

    ResizeEdges {
        anchors.fill: parent
        visible: frame.resizable
        onGrabbed: edges => frame.shell.beginResize(edges)
    }

    Shortcut {
        sequences: ["Ctrl+W", "Meta+W"]
        onActivated: frame.shell.requestClose()
    }

    Shortcut {
        sequences: ["Ctrl+Q", "Meta+Q"]
        onActivated: frame.shell.requestQuit()
    }
}
