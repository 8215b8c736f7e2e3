// A group of sessions: end time, skill, duration.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

ReadableStop {
    id: row

    required property recentLine line
    readonly property real dotLeft: 96 * DarkUI.textScale
    readonly property real nameLeft: dotLeft + 15
    readonly property real lineHeight: 26

    implicitHeight: lineHeight * DarkUI.textScale
    name: line.spoken

    DarkText {
        anchors.verticalCenter: parent.verticalCenter
        width: row.dotLeft - DarkUI.space4
        text: row.line.date
        role: DarkUI.caption
        color: DarkUI.textTertiary
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    FlatDot {
        x: row.dotLeft
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.chipDotSize
        height: DarkUI.chipDotSize
        color: row.line.color
    }

    DarkText {
        id: name
        x: row.nameLeft
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, duration.x - x - DarkUI.space8
                                       - (tag.visible ? tag.width + DarkUI.space8 : 0))
        text: row.line.skillName
        role: DarkUI.caption
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    ManualTag {
        id: tag
        anchors.left: name.right
        anchors.leftMargin: DarkUI.space8
        anchors.verticalCenter: parent.verticalCenter
        visible: row.line.isManual
    }

    DarkText {
        id: duration
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: row.line.duration
        role: DarkUI.caption
        color: DarkUI.textSecondary
        Accessible.ignored: true
    }
}
