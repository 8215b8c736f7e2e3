// The panel of a menu: rows (DarkMenuRow) and separators. Arrow keys move between rows. Scrolls by
// wheel, pointer and keys when it is higher than its room. The owner closes it on dismissed() and
// after a row was triggered.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

FocusScope {
    id: panel

    property string name
    property real padding: DarkUI.space4
    property bool composited: true // otherwise opaque with square corners
    default property alias rows: column.data
    signal dismissed

    function stops() {
        const found = [];
        for (let i = 0; i < column.children.length; ++i) {
            const row = column.children[i] as DarkMenuRow;
            if (row && row.visible && row.enabled)
                found.push(row);
        }
        return found;
    }
    function focusRow(index: int): void {
        const all = stops();
        if (all.length === 0)
            return;
        const row = all[(index + all.length) % all.length];
        row.focusByKeyboard();
        bringIntoSight(row);
    }
    // For keys only: under the pointer a scrolled row would pass the highlight to the next one.
    function bringIntoSight(row: Item): void {
        if (row.y < area.contentY)
            area.contentY = row.y;
        else if (row.y + row.height > area.contentY + area.height)
            area.contentY = row.y + row.height - area.height;
    }
    // Returns the index of the highlighted row among the enabled ones; -1 for none.
    function focusedRow(): int {
        return stops().findIndex(row => row.activeFocus);
    }

    implicitWidth: Math.ceil(column.widest) + 2 * padding // windows have whole px
    implicitHeight: column.height + 2 * padding

    Accessible.role: Accessible.PopupMenu
    Accessible.name: name

    Keys.onEscapePressed: dismissed()
    Keys.onTabPressed: dismissed()
    Keys.onDownPressed: focusRow(focusedRow() + 1)
    Keys.onUpPressed: focusRow(focusedRow() < 0 ? -1 : focusedRow() - 1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            focusRow(event.key === Qt.Key_Home ? 0 : -1);
    }

    GlassBackground {
        anchors.fill: parent
        material: GlassBackground.Menu
        radius: panel.composited ? DarkUI.radiusBanner : 0
        color: panel.composited ? DarkUI.menuGround : DarkUI.windowGround
        shadowed: panel.composited
    }

    Flickable {
        id: area
        anchors.fill: parent
        anchors.margins: panel.padding
        contentWidth: width
        contentHeight: column.height
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds
        pixelAligned: true

        Column {
            id: column
            // The width of the widest row, which all rows get.
            readonly property real widest: {
                let most = 0;
                for (let i = 0; i < children.length; ++i)
                    most = Math.max(most, children[i].implicitWidth);
                return most;
            }
            width: area.width
            onWidthChanged: spread()
            onChildrenChanged: spread()

            function spread(): void {
                for (let i = 0; i < children.length; ++i)
                    children[i].width = width;
                forceLayout(); // now: a key may move to a row before the next frame
            }
        }
    }

    DarkScrollbar {
        anchors.right: parent.right
        anchors.top: area.top
        anchors.bottom: area.bottom
        view: area
        shown: true
    }
}
