// The frame of every window: ground, title strip, edges, and the view below the strip.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Window

FrameRoot {
    id: frame

    readonly property int viewMinimum: resizable ? 0 : minimumHeight > 0 ? minimumHeight
                                                                         : loader.implicitHeight

    ready: loader.status === Loader.Ready
    implicitWidth: loader.implicitWidth
    implicitHeight: loader.implicitHeight + DarkUI.stripHeight

    Component.onCompleted: loader.setSource(frame.view, { "model": frame.model })

    DarkWindowGlass {
        anchors.fill: parent
        composited: frame.rounded
    }

    // Any empty place moves the window. The window manager is asked once: asked again after the
    // release, it would hold on to the pointer.
    MouseArea {
        property point pressedAt
        property bool asked: false

        anchors.fill: parent
        onPressed: mouse => {
            pressedAt = Qt.point(mouse.x, mouse.y);
            asked = false;
        }
        onPositionChanged: mouse => {
            const distance = Math.abs(mouse.x - pressedAt.x) + Math.abs(mouse.y - pressedAt.y);
            if (asked || distance < Application.styleHints.startDragDistance)
                return;
            asked = true;
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

    FocusInSight {
        view: area
    }

    DarkTopStrip {
        width: parent.width
        title: frame.title
        minimisable: frame.minimisable
        onMinimiseRequested: frame.shell.minimise()
        onCloseRequested: frame.shell.requestClose()
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
