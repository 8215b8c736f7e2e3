// A skill below the top one: name, hours and share above a bar.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

Item {
    id: row

    required property reviewSkillLine line
    property bool animated: false
    property int order: 0
    readonly property real rowHeight: 34
    readonly property real shareWidth: 48

    implicitHeight: rowHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: line.spoken

    DarkText {
        width: hours.x - DarkUI.space12
        text: row.line.name
        role: DarkUI.note
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    DarkText {
        id: hours
        anchors.right: parent.right
        anchors.rightMargin: row.shareWidth
        text: row.line.hours
        role: DarkUI.note
        color: DarkUI.textSecondary
        Accessible.ignored: true
    }

    DarkText {
        anchors.right: parent.right
        text: row.line.share
        role: DarkUI.note
        color: DarkUI.textTertiary
        Accessible.ignored: true
    }

    GlassBarTrack {
        anchors.bottom: parent.bottom
        width: row.width
        implicitHeight: DarkUI.barReviewHeight

        GlassBarFill {
            visible: growth.way > 0
            color: row.line.color
            fraction: row.line.fraction * growth.way
        }
    }

    GrowIn {
        id: growth
        animated: row.animated
        order: row.order
        baseDelay: DarkUI.cascadeDelay + 2 * DarkUI.cascadeStep
    }
}
