// One skill: its name, a bar, its hours and its share.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

ReadableStop {
    id: row

    required property skillTotalLine line
    property real hoursWidth: implicitWidth // px, of the widest of all rows
    readonly property real nameWidth: Math.max(84, Math.round(width * 0.4))
    readonly property real figuresWidth: 82 // at least
    readonly property real shareWidth: 36

    implicitWidth: hours.implicitWidth
    name: line.spoken

    DarkText {
        anchors.verticalCenter: parent.verticalCenter
        width: row.nameWidth - DarkUI.space8
        text: row.line.name
        role: DarkUI.caption
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    GlassBarTrack {
        x: row.nameWidth
        anchors.verticalCenter: parent.verticalCenter
        width: row.width - x - Math.max(row.figuresWidth * DarkUI.textScale,
                                        row.shareWidth * DarkUI.textScale + row.hoursWidth
                                        + DarkUI.space8)
        implicitHeight: DarkUI.barTableHeight

        GlassBarFill {
            color: row.line.color
            fraction: row.line.fraction
        }
    }

    TabularText {
        id: hours
        anchors.right: parent.right
        anchors.rightMargin: row.shareWidth * DarkUI.textScale
        anchors.verticalCenter: parent.verticalCenter
        text: row.line.hours
        role: DarkUI.caption
        color: DarkUI.textSecondary
        Accessible.ignored: true
    }

    TabularText {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: row.line.share
        role: DarkUI.caption
        color: DarkUI.textTertiary
        Accessible.ignored: true
    }
}
