// The wall: one dot per finished hour; the current hour fills as a slice.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

DashboardCard {
    id: card

    required property DashboardView model
    readonly property real captionRoom: 38

    readonly property real belowHeading: 52

    implicitHeight: belowHeading + Math.round(captionRoom * DarkUI.textScale) + detailHeight
    heading: qsTr("Hour wall")
    detail: model.wallText

    GlassDotWall {
        y: DarkUI.space4
        width: card.innerWidth
        height: DarkUI.space36
        colors: card.model.wallColors
        sliceFraction: card.model.sliceFraction
        sliceColor: card.model.sliceColor
    }
}
