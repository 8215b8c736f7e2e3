// The notes under the headings of their days.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Notes

FocusScope {
    id: area

    required property LogView model

    function goBy(step: int): void {
        list.currentIndex = Math.max(0, Math.min(list.currentIndex + step, list.count - 1));
        const row = list.currentItem as NoteRow;
        if (row)
            row.focusByKeyboard();
    }

    // Another search starts at the top. The row with the editor stays the current one.
    Connections {
        target: area.model
        function onFilterChanged(): void {
            list.positionViewAtBeginning();
            const current = list.currentItem as NoteRow;
            if (!current || !current.editing)
                list.currentIndex = Math.min(0, list.count - 1);
        }
    }

    TextMetrics {
        id: widestTime
        font: DarkUI.body.font
        text: area.model.widestTimeText
    }

    ListView {
        id: list
        anchors.fill: parent
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        focus: true
        keyNavigationEnabled: false // the rows pass the focus on, as the keyboard does
        highlightMoveDuration: 0
        model: area.model.rows
        reuseItems: true
        bottomMargin: DarkUI.space14
        // Notes are of many heights; some more of them keep the scroll bar steady.
        cacheBuffer: Math.max(0, height)

        section.property: "dayText"
        // From its file: a list can't make a component that is bound to this one. The list holds
        // it, or the collector would take it while headings are still made of it.
        section.delegate: Qt.createComponent("NotesDayHeading.qml", Component.PreferSynchronous,
                                             list)

        delegate: NoteRow {
            id: note
            required property int index
            width: ListView.view.width
            log: area.model
            // What has the focus can't leave the order of the Tab key.
            activeFocusOnTab: ListView.isCurrentItem || activeFocus
            timeWidth: Math.max(54, widestTime.width + DarkUI.space10)
            onLeftBehind: step => area.goBy(step)
            // Of rows that leave the window, the list keeps the view of the current one alone.
            onEditorEntered: {
                if (list.currentIndex === index)
                    return;
                list.currentIndex = index;
                note.takeKeyboard(); // a row that becomes the current one gets the focus itself
            }
        }

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Notes")
    }

    ReadingOrder {
        parentItem: list.contentItem
    }

    EdgeFade {
        anchors.bottom: parent.bottom
        width: parent.width
        visible: !list.atYEnd
    }

    DarkScrollbar {
        anchors.right: parent.right
        height: parent.height
        view: list
    }
}
