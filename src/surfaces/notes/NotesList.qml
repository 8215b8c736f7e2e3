// The notes under the headings of their days.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Notes

FocusScope {
    id: area

    required property LogView model

    ListView {
        id: list
        anchors.fill: parent
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        focus: true
        keyNavigationEnabled: true
        currentIndex: -1
        highlightMoveDuration: 0
        model: area.model.rows
        bottomMargin: DarkUI.space14
        // Notes are of many heights; some more of them keep the scroll bar steady.
        cacheBuffer: height

        section.property: "dayText"
        section.delegate: NotesDayHeading {}

        delegate: NoteRow {
            width: ListView.view.width
            log: area.model
            current: ListView.isCurrentItem && list.activeFocus
        }

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Notes")

        onActiveFocusChanged: if (activeFocus && currentIndex < 0) currentIndex = 0
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
