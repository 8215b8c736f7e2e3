// The panel of a menu: rows (DarkMenuRow) and separators, one below the other. The arrow keys lead
// through the rows. A panel that is given less height than its rows need scrolls by wheel, pointer
// and keys. Whoever shows it closes it on dismissed() and after a row was triggered.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

FocusScope {
    id: panel

    property string name
    property real padding: DarkUI.space4
    property bool composited: true // else nothing can be see-through, and corners are square
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
    // For the keys alone: a row that moved under the pointer would hand the mark to the next one.
    function bringIntoSight(row: Item): void {
        if (row.y < area.contentY)
            area.contentY = row.y;
        else if (row.y + row.height > area.contentY + area.height)
            area.contentY = row.y + row.height - area.height;
    }
    // The row that has the mark, among those that can be chosen; -1 for none.
    function focusedRow(): int {
        return stops().findIndex(row => row.activeFocus);
    }

    implicitWidth: Math.ceil(column.widest) + 2 * padding // the window is whole px
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
            // As wide as the widest row; all rows are as wide as that.
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
                forceLayout(); // not with the next frame: a key may lead to a row before that
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
