// A milestone in a ring of dots, with its date.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review
import Vantle.Wrapped

Plate {
    id: card

    required property milestoneBadge badge
    required property list<color> colors
    property bool small: false // one of several in a row
    property bool tiny: false // one of five in a row
    readonly property real ringWidth: tiny ? 48 : small ? 60 : 78
    readonly property real ringDot: tiny ? 2.5 : small ? 3 : 3.75
    readonly property real ringDots: 6 // dots beside the figure, in radii
    readonly property real smallestFigure: 10
    readonly property real badgeHeight: tiny ? 112 : small ? 128 : 168

    implicitHeight: badgeHeight
    radius: DarkUI.radiusCard
    color: DarkUI.cardFill
    edge: DarkUI.hairline
    Accessible.role: Accessible.StaticText
    Accessible.name: badge.spoken

    DotRing {
        id: ring
        anchors.horizontalCenter: parent.horizontalCenter
        y: card.tiny ? DarkUI.space12 : card.small ? DarkUI.space14 : DarkUI.space24
        width: card.ringWidth
        height: width
        dotRadius: card.ringDot
        colors: card.colors
        count: card.colors.length

        DarkText {
            anchors.centerIn: parent
            width: ring.width - card.ringDots * ring.dotRadius
            height: ring.height
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            // A figure that is drawn smaller to fit would stand at the top of its role's line.
            lineHeightMode: Text.ProportionalHeight
            lineHeight: 1
            topPadding: 0
            bottomPadding: 0
            text: card.badge.hours
            role: card.tiny ? DarkUI.cardTitle : card.small ? DarkUI.titleM : DarkUI.titleXL
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: card.smallestFigure
            Accessible.ignored: true
        }
    }

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: ring.bottom
        anchors.topMargin: card.small ? DarkUI.space6 : DarkUI.space14

        DarkText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("hours")
            role: DarkUI.captionMedium
            color: DarkUI.textSecondary
            Accessible.ignored: true
        }

        DarkText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: card.badge.date
            role: DarkUI.caption
            color: DarkUI.textTertiary
            Accessible.ignored: true
        }
    }
}
