// The kinds of builders, the sign of an unknown one, and a kind that takes shape.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.DemoPersonas
import Vantle.Kit
import Vantle.Review
import Vantle.Wrapped

Rectangle {
    implicitWidth: 1000
    implicitHeight: 890
    color: DarkUI.windowGround

    PersonaSamples {
        id: samples
    }

    DarkKicker {
        x: 56
        y: 48
        text: "Builder types"
    }

    Grid {
        x: 56
        y: 96
        columns: 4

        Repeater {
            model: samples.cards

            Item {
                id: sample
                required property personaCard modelData

                width: 222
                height: 190

                PersonaDisc {
                    id: disc
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: 110
                    height: width
                    card: sample.modelData
                }

                DarkText {
                    anchors.horizontalCenter: parent.horizontalCenter
                    anchors.top: disc.bottom
                    anchors.topMargin: DarkUI.space14
                    text: sample.modelData.name || sample.modelData.lead
                    role: DarkUI.panelTitle
                }
            }
        }
    }
}
