// A vertical scroll view for wheel, pointer and keys, without overshoot. Scrolls to the item that
// gets the focus.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

FocusScope {
    id: view

    default property alias content: flickable.flickableData
    property alias flickable: flickable
    property alias contentHeight: flickable.contentHeight
    property alias contentY: flickable.contentY
    property bool faded: true // whether its edges fade out
    property color ground: DarkUI.windowGround
    property bool atWindowBottom: false // keeps fade and bar off the window's edge and corners
    readonly property real beside: atWindowBottom ? DarkUI.hairlineWidth : 0
    property bool scrollbarShown: false

    function scrollTo(y: real): void {
        focusInSight.scrollTo(y);
    }

    Accessible.role: Accessible.Pane

    Flickable {
        id: flickable
        anchors.fill: parent
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        contentWidth: width
        contentHeight: contentItem.childrenRect.height
        interactive: contentHeight > height
        pixelAligned: true
    }

    EdgeFade {
        anchors.top: parent.top
        x: view.beside
        width: parent.width - 2 * view.beside
        height: DarkUI.edgeFadeTop
        visible: view.faded && !flickable.atYBeginning
        edge: Qt.TopEdge
        ground: view.ground
    }

    EdgeFade {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: view.beside
        x: view.beside
        width: parent.width - 2 * view.beside
        visible: view.faded && !flickable.atYEnd
        ground: view.ground
        radius: view.atWindowBottom ? DarkUI.radiusWindow - view.beside : 0
    }

    DarkScrollbar {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.bottomMargin: view.atWindowBottom ? DarkUI.radiusWindow : 0
        view: flickable
        shown: view.scrollbarShown
    }

    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_PageDown)
            scrollTo(flickable.contentY + flickable.height - DarkUI.edgeFadeLength);
        else if (event.key === Qt.Key_PageUp)
            scrollTo(flickable.contentY - flickable.height + DarkUI.edgeFadeLength);
        else if (event.key === Qt.Key_Home)
            scrollTo(0);
        else if (event.key === Qt.Key_End)
            scrollTo(flickable.contentHeight);
        else
            event.accepted = false;
    }

    FocusInSight {
        id: focusInSight
        view: flickable
    }
}
