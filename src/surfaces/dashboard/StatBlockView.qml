// A progress figure; before there are hours, how to get some.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

DarkCard {
    id: block

    required property statBlock stat
    readonly property bool hasValue: stat.value !== ""

    implicitHeight: 110
    padding: 0
    Accessible.role: Accessible.Grouping
    Accessible.name: hasValue ? qsTr("%1: %2 %3, %4").arg(stat.title).arg(stat.value)
                                                     .arg(stat.unit).arg(stat.context)
                              : qsTr("%1: %2").arg(stat.title).arg(stat.invitation)

    DarkText {
        x: DarkUI.space16
        y: 13
        width: block.width - 2 * DarkUI.space16
        text: block.stat.title
        role: DarkUI.captionMedium
        color: DarkUI.t2
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    DarkText {
        id: value
        x: DarkUI.space16
        y: 30
        width: Math.min(implicitWidth, block.width - 2 * DarkUI.space16)
        visible: block.hasValue
        text: block.stat.value
        role: DarkUI.statValue
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 12
        Accessible.ignored: true
    }

    DarkText {
        anchors.left: value.right
        anchors.leftMargin: DarkUI.space4
        anchors.baseline: value.baseline
        visible: block.hasValue
                 && value.x + value.width + implicitWidth + DarkUI.space4 < block.width
        text: block.stat.unit
        role: DarkUI.statUnit
        color: DarkUI.t3
        Accessible.ignored: true
    }

    DarkText {
        x: DarkUI.space16
        y: 67
        width: block.width - 2 * DarkUI.space16
        visible: block.hasValue
        text: block.stat.context
        role: DarkUI.small
        color: DarkUI.t3
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    GlassBarTrack {
        x: DarkUI.space16
        y: block.height - 13 - height
        width: block.width - 2 * DarkUI.space16
        visible: block.hasValue

        GlassBarFill {
            color: block.stat.accent
            fraction: block.stat.fraction
        }
    }

    DarkText {
        x: DarkUI.space16
        y: block.height - 13 - height
        width: block.width - 2 * DarkUI.space16
        visible: !block.hasValue
        text: block.stat.invitation
        role: DarkUI.caption
        color: DarkUI.t3
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
