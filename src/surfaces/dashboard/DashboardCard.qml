// A card with a heading and a secondary text, at its right if it fits, else below.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

DarkCard {
    id: card

    required property string heading
    property string detail
    default property alias inner: area.data
    readonly property real innerWidth: width - 2 * DarkUI.space16
    readonly property real headingTop: 11
    readonly property real innerTop: 38
    // From the middle of the room below the heading to the card's own, where an empty card speaks.
    readonly property real middleOffset: (height - area.height) / 2 - area.y
    readonly property bool split: detail !== "" && title.width + DarkUI.space12
                                                   + smallest.advanceWidth > innerWidth
    // px that the card is higher for it
    readonly property real detailHeight: split ? quiet.height : 0

    padding: 0

    DarkText {
        id: title
        x: DarkUI.space16
        y: card.headingTop
        text: card.heading
        role: DarkUI.bodyStrong
        Accessible.role: Accessible.Heading
    }

    TextMetrics {
        id: smallest
        font: DarkUI.small.font
        text: card.detail
    }

    DarkText {
        id: quiet
        x: card.split ? DarkUI.space16 : card.width - DarkUI.space16 - width
        y: card.split ? title.y + title.height : title.y + title.baselineOffset - baselineOffset
        // Reads its implicit width from the start: asked for later, that would loop.
        width: Math.min(implicitWidth,
                        card.innerWidth - (card.split ? 0 : title.width + DarkUI.space12))
        text: card.detail
        role: DarkUI.caption
        color: DarkUI.textTertiary
        // Shrinks only very long texts, after years of work.
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: DarkUI.small.size
        elide: Text.ElideRight
    }

    Item {
        id: area
        x: DarkUI.space16
        y: Math.round(card.innerTop * DarkUI.textScale) + card.detailHeight
        width: card.innerWidth
        height: card.height - y - DarkUI.space12
    }
}
