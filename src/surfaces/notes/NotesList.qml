// The list of notes under day headings.
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

    // A new search scrolls to the top. The row being edited stays current.
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
        keyNavigationEnabled: false // the rows pass the focus on
        highlightMoveDuration: 0
        model: area.model.rows
        reuseItems: true
        bottomMargin: DarkUI.space14
        // Notes vary in height; a larger cache steadies the scrollbar.
        cacheBuffer: Math.max(0, height)

        section.property: "dayText"
        // By URL, since a list cannot create a component bound to this file. The list keeps a
        // reference, or the garbage collector would take it.
        section.delegate: Qt.createComponent("NotesDayHeading.qml", Component.PreferSynchronous,
                                             list)

        delegate: NoteRow {
            id: note
            required property int index
            width: ListView.view.width
            log: area.model
            // The focused item must stay in the Tab order.
            activeFocusOnTab: ListView.isCurrentItem || activeFocus
            timeWidth: Math.max(54, widestTime.width + DarkUI.space16)
            onLeftBehind: step => area.goBy(step)
            // Of rows scrolled out of the window, the list keeps only the current one.
            onEditorEntered: {
                if (list.currentIndex === index)
                    return;
                list.currentIndex = index;
                note.takeKeyboard(); // a row that becomes current gets the focus itself
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
