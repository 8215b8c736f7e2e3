// Scrolls a view to the item that gets the focus. Placed in the view or beside it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: keeper

    required property Flickable view

    function keep(item: Item): void {
        let above = item;
        while (above && above !== view.contentItem)
            above = above.parent;
        if (!above)
            return;
        const top = item.mapToItem(view.contentItem, 0, 0).y;
        const margin = DarkUI.edgeFadeLength;
        if (top - margin < view.contentY)
            scrollTo(top - margin);
        else if (top + item.height + margin > view.contentY + view.height)
            scrollTo(top + item.height + margin - view.height);
    }
    function scrollTo(y: real): void {
        view.contentY = Math.max(0, Math.min(y, view.contentHeight - view.height));
    }

    Connections {
        target: keeper.Window.window
        function onActiveFocusItemChanged(): void {
            const item = keeper.Window.activeFocusItem;
            if (item)
                keeper.keep(item);
        }
    }
}
