// The notes window: header with search and filters, notes by day, footer.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Notes

FocusScope {
    id: window

    required property LogView model

    focus: true
    implicitWidth: 520
    implicitHeight: 620

    Announcer {
        id: announcer
    }

    Connections {
        target: window.model
        function onCopied(): void {
            announcer.say(qsTr("Copied"));
        }
    }

    NotesEmpty {
        anchors.fill: parent
        visible: window.model.state === LogView.Empty
    }

    NotesHeader {
        id: header
        width: parent.width
        visible: window.model.state !== LogView.Empty
        model: window.model
        focus: true
    }

    NotesNoMatch {
        anchors.top: header.bottom
        anchors.bottom: footer.top
        width: parent.width
        visible: window.model.state === LogView.NothingFits
        onClearRequested: window.model.clearFilters()
    }

    NotesList {
        anchors.top: header.bottom
        anchors.bottom: footer.top
        width: parent.width
        visible: window.model.state === LogView.Listed
        model: window.model
    }

    NotesFooter {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width
        text: window.model.footerText
        failure: window.model.failure
    }
}
