// The type scale, and figures in columns.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Rectangle {
    implicitWidth: 1000
    implicitHeight: 570
    color: DarkUI.windowGround

    component Step: Row {
        id: step
        required property TypeRole role
        required property string word
        property color color: DarkUI.textPrimary
        spacing: DarkUI.space16

        DarkText {
            id: sampleWord
            text: step.word
            role: step.role
            color: step.color
        }
        DarkText {
            anchors.baseline: sampleWord.baseline
            text: step.role.size + " / " + step.role.line
            role: DarkUI.small
            color: DarkUI.textTertiary
        }
    }

    Row {
        x: 48
        y: 40
        spacing: DarkUI.space64

        Column {
            spacing: DarkUI.space14

            DarkKicker {
                text: "Type"
            }
            Step { role: DarkUI.heroReview; word: "18.4" }
            Step { role: DarkUI.duration; word: "2 h 24 min" }
            Step { role: DarkUI.statValue; word: "46.3" }
            Step { role: DarkUI.titleXL; word: "Your week" }
            Step { role: DarkUI.titleL; word: "Your hours" }
            Step { role: DarkUI.titleM; word: "Where it went" }
            Step { role: DarkUI.cardTitle; word: "Card title" }
            Step { role: DarkUI.panelTitle; word: "Panel title" }
        }

        Column {
            y: 40
            spacing: DarkUI.space14

            Step {
                role: DarkUI.lead
                word: "A lead that says what comes"
                color: DarkUI.textSecondary
            }
            Step { role: DarkUI.note; word: "Webhook retries land in order" }
            Step { role: DarkUI.body; word: "Body" }
            Step { role: DarkUI.bodyMedium; word: "A row" }
            Step { role: DarkUI.bodyStrong; word: "A button" }
            Step { role: DarkUI.caption; word: "Caption"; color: DarkUI.textSecondary }
            Step { role: DarkUI.small; word: "Small"; color: DarkUI.textTertiary }
            Step { role: DarkUI.kicker; word: "KICKER"; color: DarkUI.textTertiary }
            Step { role: DarkUI.capsuleSkill; word: "Design"; color: DarkUI.textCapsuleName }

            DarkDivider {
                width: 340
            }

            Row {
                spacing: DarkUI.space36
                Repeater {
                    model: ["0:11:11", "1:48:00"]

                    TabularText {
                        required property string modelData
                        text: modelData
                        role: DarkUI.capsuleClock
                    }
                }
            }
            Column {
                Repeater {
                    model: ["21.4 h", "11.1 h", "09.6 h"]

                    TabularText {
                        required property string modelData
                        text: modelData
                        color: DarkUI.textSecondary
                    }
                }
            }
        }
    }
}
