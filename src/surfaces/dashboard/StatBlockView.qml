// A progress figure, or before there are hours an invitation.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

DarkCard {
    id: block

    required property statBlock stat
    readonly property bool hasValue: stat.value !== ""
    readonly property real inner: width - 2 * DarkUI.space16
    readonly property real bottomGap: 13
    // The value's height has room to spare, which larger text uses.
    readonly property real belowValue: value.y + (DarkUI.textScale > 1 ? value.height : figureRoom)
    readonly property real needed: hasValue
        ? context.y + context.height + DarkUI.space8 + bar.height + bottomGap
        : title.y + title.height + DarkUI.space4 + invitation.height + bottomGap
    readonly property real leastHeight: 110
    readonly property real titleTop: 13
    readonly property real titleRoom: 17
    readonly property real smallestFigure: 12
    readonly property real figureRoom: 37

    implicitHeight: Math.max(leastHeight, Math.ceil(needed))
    padding: 0

    DarkText {
        id: title
        x: DarkUI.space16
        y: block.titleTop
        width: block.inner
        text: block.stat.title
        role: DarkUI.captionMedium
        color: DarkUI.textSecondary
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    DarkText {
        id: value
        x: DarkUI.space16
        y: title.y + Math.max(title.height, Math.round(block.titleRoom * DarkUI.textScale))
        width: Math.min(implicitWidth, block.inner - unit.implicitWidth - DarkUI.space4)
        visible: block.hasValue
        text: block.stat.value
        role: DarkUI.statValue
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: block.smallestFigure
        Accessible.ignored: true
    }

    DarkText {
        id: unit
        anchors.left: value.right
        anchors.leftMargin: DarkUI.space4
        anchors.baseline: value.baseline
        visible: block.hasValue
        text: block.stat.unit
        role: DarkUI.statUnit
        color: DarkUI.textTertiary
        Accessible.ignored: true
    }

    DarkText {
        id: context
        x: DarkUI.space16
        y: block.belowValue
        width: block.inner
        visible: block.hasValue
        text: block.stat.context
        role: DarkUI.small
        color: DarkUI.textTertiary
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    GlassBarTrack {
        id: bar
        x: DarkUI.space16
        y: block.height - block.bottomGap - height
        width: block.inner
        visible: block.hasValue

        GlassBarFill {
            color: block.stat.accent
            fraction: block.stat.fraction
        }
    }

    DarkText {
        id: invitation
        x: DarkUI.space16
        y: block.height - block.bottomGap - height
        width: block.inner
        visible: !block.hasValue
        text: block.stat.invitation
        role: DarkUI.caption
        color: DarkUI.textTertiary
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
