// The period in words.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ReviewPage {
    id: page

    readonly property narrativeCard content: texts.narrative
    readonly property real room: foot.y - kickerHeight - DarkUI.space44
    // A sentence that is long for its page is set smaller.
    readonly property TypeRole role: measure.height <= room ? DarkUI.quotation : DarkUI.titleMQuiet
    readonly property real sentencePlace: 0.45 // of the room that it leaves

    function escaped(words: string): string {
        return words.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;");
    }

    kicker: content.kicker

    DarkText {
        id: measure
        visible: false
        width: page.width
        text: page.content.text
        role: DarkUI.quotation
        wrapMode: Text.Wrap
    }

    CascadeIn {
        y: page.kickerHeight + Math.max(DarkUI.space20,
                                        Math.round((foot.y - page.kickerHeight - height)
                                                   * page.sentencePlace))
        animated: page.animated
        order: 1

        DarkText {
            width: page.width
            text: page.escaped(page.content.opening)
                  + "<font color=\"" + DarkUI.textSecondary + "\">"
                  + page.escaped(page.content.rest) + "</font>"
            textFormat: Text.StyledText
            role: page.role
            horizontalAlignment: undefined // that of the script it is written in
            wrapMode: Text.Wrap
            Accessible.name: page.content.text
        }
    }

    PageFoot {
        id: foot
        lines: [page.content.quiet]
        animated: page.animated
        order: 2
    }
}
