// The page with the period's narrative.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ReviewPage {
    id: page

    readonly property narrativeCard content: texts.narrative
    readonly property real room: foot.y - kickerHeight - DarkUI.space44
    // Smaller type for a sentence that does not fit.
    readonly property TypeRole role: measure.height <= room ? DarkUI.quotation : DarkUI.titleMQuiet
    readonly property real sentencePlace: 0.38 // relative to the free height

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
            horizontalAlignment: undefined // by script
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
