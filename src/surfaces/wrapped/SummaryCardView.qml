// The last page: the poster and the buttons to share it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review
import Vantle.Wrapped

ReviewPage {
    id: page

    readonly property summaryCard content: texts.summary
    readonly property sharePoster poster: texts.poster
    readonly property real footWidth: 112
    // A year's poster is too high for the page at the usual width: it takes the room of the line
    // above it, which the poster repeats.
    property bool tall: false

    kicker: content.title

    CascadeIn {
        id: closing
        y: page.kickerHeight + DarkUI.space8
        visible: !page.tall
        animated: page.animated
        order: 1

        DarkText {
            width: page.width
            text: page.content.closing
            role: DarkUI.note
            color: DarkUI.textSecondary
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
        }
    }

    CascadeIn {
        id: picture
        readonly property real beside: share.y - DarkUI.space12 - aboveOf(closing) // with the line
        readonly property real alone: share.y - DarkUI.space12 - aboveOf(null)
        readonly property real room: page.tall ? alone : beside

        function aboveOf(line: Item): real {
            return DarkUI.space10 + (line ? line.y + line.height : page.kickerHeight);
        }

        x: Math.round((page.width - width) / 2)
        y: Math.round(share.y - DarkUI.space12 - (room + height) / 2)
        animated: page.animated
        order: 2
        slam: true

        DarkShadow {
            anchors.fill: poster
            level: DarkUI.shadowPopover
            radius: DarkUI.radiusWindow
        }

        SharePosterPicture {
            id: poster
            readonly property real beside: picture.beside

            function fit(): void {
                width = DarkUI.posterWidth;
                page.tall = beside > 0 && implicitHeight > beside;
                if (page.tall && implicitHeight > picture.alone)
                    width = Math.floor(width * picture.alone / implicitHeight);
            }

            height: implicitHeight
            radius: DarkUI.radiusWindow
            poster: page.poster
            onBesideChanged: fit()
            Component.onCompleted: fit()
            Accessible.role: Accessible.Graphic
            Accessible.name: page.poster.title + ". " + page.poster.closing
        }
    }

    Item {
        id: share
        // Where the buttons leave too little room beside them, the text stands above them.
        readonly property bool stacked: page.footWidth + DarkUI.space12 + buttons.width > width
        anchors.bottom: parent.bottom
        width: page.width
        height: DarkUI.buttonHeight + (stacked ? foot.height + DarkUI.space6 : 0)

        DarkText {
            id: foot
            y: share.stacked ? 0 : (share.height - height) / 2
            width: share.stacked ? page.width : page.footWidth
            text: page.content.foot
            role: DarkUI.caption
            color: DarkUI.textTertiary
            wrapMode: Text.Wrap
        }

        Row {
            id: buttons
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            spacing: DarkUI.space8

            DarkSecondaryButton {
                text: qsTr("Save image…")
                onClicked: page.model.saveImage()
            }

            DarkPrimaryButton {
                text: page.model.copyText
                onClicked: page.model.copyImage()
            }
        }
    }

    DarkText {
        anchors.top: share.bottom
        anchors.topMargin: DarkUI.space8
        anchors.right: parent.right
        width: page.width
        horizontalAlignment: Text.AlignRight
        text: page.model.shareFeedback

        Announcer {
            text: page.model.copied ? page.model.copyText : page.model.shareFeedback
        }
        role: DarkUI.caption
        color: DarkUI.dangerText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: DarkUI.small.size
        elide: Text.ElideLeft
        Accessible.role: Accessible.AlertMessage
    }
}
