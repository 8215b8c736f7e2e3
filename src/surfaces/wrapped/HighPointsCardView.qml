// The page of high points.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ReviewPage {
    id: page

    readonly property highPointsCard content: texts.highPoints

    kicker: content.kicker

    CascadeIn {
        id: sentence
        y: page.kickerHeight + DarkUI.space14
        animated: page.animated
        order: 1

        DarkText {
            width: page.width
            text: page.content.sentence
            role: DarkUI.lead
            color: DarkUI.textSecondary
            wrapMode: Text.Wrap
        }
    }

    Column {
        y: Math.round((page.height - height) / 2)
        width: page.width
        spacing: DarkUI.space20

        Repeater {
            model: page.content.lines

            HighPointRow {
                required property highPoint modelData
                required property int index
                width: page.width
                point: modelData
                order: index
                last: index === page.content.lines.length - 1
                animated: page.animated
            }
        }
    }
}
