// The calendar of a period: brighter means more time, in the colour of the top skill. Colour is
// never the only cue: each day has its date and hours as text.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review
import Vantle.Wrapped

Item {
    id: map

    required property rhythmCard rhythm
    property bool animated: false
    property bool arrived: false
    property int pointedDay: hover.hovered ? tiles.dayAt(hover.point.position.x,
                                                         hover.point.position.y) : -1

    implicitHeight: tiles.implicitHeight
    Accessible.role: Accessible.Graphic
    Accessible.name: rhythm.label
    Accessible.description: rhythm.caption
    Accessible.ignored: rhythm.label === ""

    // One tooltip for all days; restarts its delay on each.
    onPointedDayChanged: {
        help.pointed = false;
        help.pointed = pointedDay >= 0;
    }

    RhythmTiles {
        id: tiles
        width: map.width
        height: implicitHeight
        picture: map.rhythm.picture
        font: DarkUI.small.font
        color: DarkUI.textWeekday
        futureColor: DarkUI.textWeekdayFuture
        growing: map.animated && !map.arrived && !Motion.reduced ? growth.elapsed : -1
    }

    NumberAnimation {
        id: growth
        property real elapsed: 0

        running: map.animated && !Motion.reduced
        target: growth
        property: "elapsed"
        from: 0
        to: tiles.growTime
        duration: tiles.growTime
        onFinished: map.arrived = true
    }

    // Screen readers get a year as one picture.
    Repeater {
        model: map.rhythm.picture.isYear ? 0 : tiles.dayCount

        Item {
            id: day
            required property int index
            readonly property rect area: tiles.dayArea(index)

            x: area.x
            y: area.y
            width: area.width
            height: area.height
            Accessible.role: Accessible.StaticText
            Accessible.name: tiles.dayHelp(index)
        }
    }

    HoverHandler {
        id: hover
    }

    Item {
        id: pointed
        readonly property rect area: tiles.dayArea(map.pointedDay)

        x: area.x
        y: area.y
        width: area.width
        height: area.height

        HoverHelp {
            id: help
            control: pointed
            text: tiles.dayHelp(map.pointedDay)
        }
    }
}
