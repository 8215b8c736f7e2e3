// The scrollbar beside a view. Visible while scrolling, or under the pointer.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: bar

    required property Flickable view
    property bool shown: false // keeps it visible
    readonly property real part: view.contentHeight > 0 ? view.height / view.contentHeight : 1
    readonly property real way: view.contentHeight - view.height
    readonly property real handleHeight: Math.max(DarkUI.space24, height * part)

    width: DarkUI.scrollbarWidth + 2 * DarkUI.scrollbarInset
    visible: part < 1
    opacity: shown || hold.running || hover.hovered || drag.active ? 1 : 0
    Accessible.role: Accessible.ScrollBar
    Accessible.ignored: true // keys scroll; it has nothing to read

    Behavior on opacity {
        NumberAnimation {
            duration: DarkUI.scrollbarFadeTime
        }
    }

    Plate {
        id: handle
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.scrollbarInset
        y: bar.way > 0 ? (bar.view.contentY - bar.view.originY) / bar.way
                         * (bar.height - bar.handleHeight) : 0
        width: DarkUI.scrollbarWidth
        height: bar.handleHeight
        radius: width / 2
        color: hover.hovered || drag.active ? DarkUI.pageDot : DarkUI.scrollbarThumb
    }

    HoverHandler {
        id: hover
    }

    DragHandler {
        id: drag
        property real contentFrom: 0
        target: null
        xAxis.enabled: false
        onActiveChanged: if (active) contentFrom = bar.view.contentY
        onActiveTranslationChanged: if (active) {
            const room = Math.max(bar.height - bar.handleHeight, 1);
            const goal = contentFrom + activeTranslation.y / room * bar.way;
            bar.view.contentY = bar.view.originY
                                + Math.max(0, Math.min(goal - bar.view.originY, bar.way));
        }
    }

    Connections {
        target: bar.view
        function onContentYChanged(): void {
            hold.restart();
        }
    }

    Timer {
        id: hold
        interval: DarkUI.scrollbarHold
    }
}
