// The progress towards a persona.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

Column {
    id: words

    required property personaCard content
    property bool animated: false

    spacing: DarkUI.space18

    CascadeIn {
        animated: words.animated
        order: 2

        DarkText {
            text: words.content.lead
            role: DarkUI.namePoster
            Accessible.role: Accessible.Heading
        }
    }

    CascadeIn {
        animated: words.animated
        order: 3

        Row {
            spacing: DarkUI.space28

            Repeater {
                model: words.content.facts

                // "3 / 5 sessions": emphasises the figures.
                Row {
                    id: fact
                    required property string modelData
                    readonly property int split: modelData.lastIndexOf(" ")

                    Accessible.role: Accessible.StaticText
                    Accessible.name: modelData

                    DarkText {
                        text: fact.modelData.substring(0, fact.split)
                        role: DarkUI.cardTitle
                        Accessible.ignored: true
                    }

                    DarkText {
                        text: fact.modelData.substring(fact.split)
                        role: DarkUI.cardTitle
                        color: DarkUI.textTertiary
                        Accessible.ignored: true
                    }
                }
            }
        }
    }

    CascadeIn {
        animated: words.animated
        order: 4

        DarkText {
            width: words.width
            text: words.content.line
            role: DarkUI.lead
            wrapMode: Text.Wrap
        }
    }
}
