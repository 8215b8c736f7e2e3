// A popup menu on top of its window: below its owner, or above it where there is more room, never
// over it. Scrolls when it is too high. A press outside closes it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: menu

    property string name
    property bool opened: false
    property real minimumWidth: 0
    property Item anchorItem: null
    property Item focusBefore: null
    property alias panel: panel
    default property alias rows: panel.rows

    function openAt(item: Item, row: int): void {
        anchorItem = item;
        // Not bound: a binding would access the window during its destruction.
        overlay.parent = Window.contentItem;
        focusBefore = Window.activeFocusItem;
        place();
        opened = true;
        panel.forceActiveFocus(Qt.PopupFocusReason);
        if (row >= 0)
            panel.focusRow(row);
    }
    function place(): void {
        const gap = DarkUI.space4;
        const area = overlay;
        const corner = anchorItem.mapToItem(area, 0, 0);
        const bottom = corner.y + anchorItem.height;
        const below = area.height - bottom - 2 * gap;
        const above = corner.y - 2 * gap;
        const downwards = panel.implicitHeight <= below || below >= above;
        panel.width = Math.min(Math.max(panel.implicitWidth, minimumWidth), area.width - 2 * gap);
        panel.height = Math.min(panel.implicitHeight, downwards ? below : above);
        panel.x = Math.max(gap, Math.min(corner.x, area.width - panel.width - gap));
        panel.y = downwards ? bottom + gap : corner.y - gap - panel.height;
    }
    function close(): void {
        if (!opened)
            return;
        opened = false;
        if (focusBefore)
            focusBefore.forceActiveFocus(Qt.PopupFocusReason);
    }

    Item {
        id: overlay

        function follow(): void {
            if (menu.opened)
                menu.place();
        }

        parent: null
        anchors.fill: parent
        z: 1000 // on top of the window
        visible: menu.opened
        onWidthChanged: follow()
        onHeightChanged: follow()

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            onPressed: menu.close()
            onWheel: wheel => wheel.accepted = true
        }

        DarkMenuPanel {
            id: panel
            name: menu.name
            onImplicitHeightChanged: overlay.follow()
            onDismissed: menu.close()
        }
    }
}
