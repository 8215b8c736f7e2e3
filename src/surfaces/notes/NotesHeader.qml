// The header: number of notes, search, filters.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Notes

FocusScope {
    id: header

    required property LogView model
    readonly property bool stacked: width < leastBeside // whether the subtitle has its own row
    readonly property real leastBeside: 500 // px of width
    readonly property real wideFrom: 560 // px of width for the long search field
    readonly property real searchWidth: 190
    readonly property real searchWidthNarrow: 160
    readonly property real leastFiltersTop: 69

    implicitHeight: line.y + line.height

    // Announces the result of a search or filter.
    Announcer {
        text: header.model.query === "" && header.model.showsAll ? "" : header.model.countText
    }

    DarkText {
        id: title
        x: DarkUI.space28
        y: DarkUI.space6
        width: search.x - x - DarkUI.space12
        text: header.model.countText
        role: DarkUI.titleL
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
    }

    DarkText {
        id: subtitle
        x: DarkUI.space28
        y: header.stacked ? search.y + search.height + DarkUI.space6
                          : title.y + title.height + DarkUI.space2
        width: header.stacked ? header.width - 2 * x : title.width
        text: header.model.subtitleText
        role: DarkUI.caption
        color: DarkUI.textSecondary
        wrapMode: Text.Wrap
    }

    DarkTextField {
        id: search
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space28
        y: DarkUI.space14
        width: Math.max(header.width < header.wideFrom ? header.searchWidthNarrow
                                                       : header.searchWidth,
                        Math.min(placeholderWidth, header.width / 2))
        minHeight: DarkUI.searchFieldHeight
        icon: "search"
        name: qsTr("Search notes")
        placeholder: qsTr("Search notes")
        clearable: true
        focus: true
        text: header.model.query
        onEdited: header.model.query = search.text
        Keys.onEscapePressed: {
            header.model.query = "";
            search.focus = false;
        }

        Connections {
            target: header.model
            function onFilterChanged(): void {
                if (search.text !== header.model.query)
                    search.text = header.model.query;
            }
        }
    }

    NotesFilterRow {
        id: filters
        anchors.left: parent.left
        anchors.leftMargin: DarkUI.space28
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space28
        y: Math.max(header.leastFiltersTop, subtitle.y + subtitle.height + DarkUI.space10)
        visible: header.model.showsFilters
        model: header.model
    }

    DarkDivider {
        id: line
        y: filters.y + filters.height + DarkUI.space14
        width: parent.width
    }

    Shortcut {
        sequence: "Ctrl+F"
        onActivated: search.forceActiveFocus(Qt.ShortcutFocusReason)
    }
}
