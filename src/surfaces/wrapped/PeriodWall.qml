// The wall of the period: a dot per finished hour, as many as fit.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review
import Vantle.Wrapped

Column {
    id: wall

    required property WrappedView model
    required property rhythmCard content
    readonly property int columns: 12
    readonly property int mostRows: 4
    readonly property int rowHeight: 28
    readonly property int rowCount: Math.max(1, Math.ceil(content.wallColors.length / columns))

    spacing: DarkUI.space18
    Component.onCompleted: model.wallCapacity = columns * mostRows

    DarkKicker {
        text: wall.content.wallKicker
    }

    GlassDotWall {
        width: wall.width
        height: wall.rowCount * wall.rowHeight
        columns: wall.columns
        rows: wall.rowCount
        colors: wall.content.wallColors
        sockets: false
        flush: true
        Accessible.ignored: true
    }

    DarkText {
        width: wall.width
        text: wall.content.wallCaption
        color: DarkUI.textTertiary
        wrapMode: Text.Wrap
    }
}
