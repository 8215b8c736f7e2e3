// The skills to choose from, as wrapping chips: one stop of the Tab key, arrow keys inside.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Cards
import Vantle.Kit

ArrowGroup {
    id: chips

    required property SkillChoices choices
    signal picked(int index)

    implicitHeight: flow.implicitHeight
    list: flow

    Flow {
        id: flow
        width: parent.width
        spacing: DarkUI.space6

        Repeater {
            model: chips.choices

            DarkChip {
                required property string skillName
                required property color skillColor
                required property int index
                text: skillName
                dotColor: skillColor
                large: true
                onClicked: chips.picked(index)
            }
        }
    }
}
