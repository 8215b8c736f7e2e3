// A note with its skill and day.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

Item {
    id: row

    required property noteHighlight note
    property int mostLines: 2
    property real gap: DarkUI.space12 // above the line below it
    property bool last: false
    readonly property real dateRoom: 100

    implicitHeight: words.height + DarkUI.space4 + meta.height
                    + (last ? 0 : gap + DarkUI.hairlineWidth)
    Accessible.role: Accessible.StaticText
    Accessible.name: note.spoken

    DarkText {
        id: words
        width: row.width
        text: row.note.text
        horizontalAlignment: undefined // by script
        role: DarkUI.note
        wrapMode: Text.Wrap
        maximumLineCount: row.mostLines
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Row {
        id: meta
        y: words.height + DarkUI.space4
        spacing: DarkUI.space6

        FlatDot {
            anchors.verticalCenter: parent.verticalCenter
            width: DarkUI.chipDotSize
            height: DarkUI.chipDotSize
            color: row.note.skillColor
        }

        DarkText {
            leftPadding: 1
            width: Math.min(implicitWidth, row.width - row.dateRoom)
            text: row.note.skillName
            role: DarkUI.caption
            color: DarkUI.textTertiary
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        DarkText {
            text: "·  " + row.note.date
            role: DarkUI.caption
            color: DarkUI.textTertiary
            Accessible.ignored: true
        }
    }

    DarkDivider {
        anchors.bottom: parent.bottom
        width: row.width
        visible: !row.last
    }
}
