// The cards' questions with their answers, for users who cannot press the cards.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.CommandCenter
import Vantle.Kit

Column {
    id: rows

    required property CommandCenterModel model
    signal answered(int question, int answer)

    spacing: DarkUI.space10
    topPadding: DarkUI.space14

    Repeater {
        model: rows.model.questions

        Column {
            id: row

            required property string modelData
            required property int index

            width: rows.width
            spacing: DarkUI.space8

            Accessible.role: Accessible.Grouping
            Accessible.name: row.modelData

            DarkText {
                width: parent.width
                text: row.modelData
                role: DarkUI.caption
                color: DarkUI.textSecondary
                wrapMode: Text.Wrap
            }

            Flow {
                width: parent.width
                spacing: DarkUI.space8

                Repeater {
                    model: rows.model.answersTo(row.index)

                    DarkSecondaryButton {
                        required property string modelData
                        required property int index

                        text: modelData
                        Accessible.description: rows.model.answerHelp(row.index, index)
                        onClicked: rows.answered(row.index, index)
                    }
                }
            }
        }
    }
}
