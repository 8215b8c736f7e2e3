// The frame of every window: background, title strip, edges, view.
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

    // Any empty area moves the window. The request is sent once: a second one after the release
    // would keep the pointer grabbed.
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

    // The view scrolls under the strip when the screen is too low.
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

    EdgeFade {
        readonly property real beside: DarkUI.hairlineWidth
        y: area.y
        x: beside
        width: parent.width - 2 * beside
        height: DarkUI.edgeFadeTop
        visible: !area.atYBeginning
        edge: Qt.TopEdge
    }

    EdgeFade {
        readonly property real beside: DarkUI.hairlineWidth
        anchors.bottom: parent.bottom
        anchors.bottomMargin: beside
        x: beside
        width: parent.width - 2 * beside
        visible: area.interactive && !area.atYEnd
        radius: frame.rounded ? DarkUI.radiusWindow - beside : 0
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
