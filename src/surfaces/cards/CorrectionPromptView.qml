// The card that offers to turn a chosen skill into a rule for an application.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Cards
import Vantle.Kit
import Vantle.Panel

FloatingSurface {
    id: view

    required property CorrectionPromptModel model
    readonly property string help: always.hovered || always.ringed ? model.alwaysHelp
                                 : no.hovered || no.ringed ? model.noHelp : ""

    groundHeight: answers.y + answers.height + DarkUI.space20

    Accessible.role: Accessible.Dialog
    Accessible.name: view.model.question

    Keys.onReturnPressed: view.model.accept()
    Keys.onEnterPressed: view.model.accept()
    Keys.onEscapePressed: view.model.decline()

    DarkText {
        id: question
        x: DarkUI.space20
        y: DarkUI.space20
        width: parent.width - 2 * DarkUI.space20
        text: view.model.question
        role: DarkUI.panelTitle
        wrapMode: Text.Wrap
    }

    Item {
        id: answers
        x: question.x
        y: question.y + question.height + DarkUI.space16
        width: question.width
        height: always.height

        SkillLabel {
            anchors.verticalCenter: parent.verticalCenter
            skillName: view.model.skillName
            skillColor: view.model.skillColor
            opacity: view.help === "" ? 1 : 0

            Behavior on opacity {
                NumberAnimation {
                    duration: DarkUI.hoverTime
                    easing.type: Easing.OutCubic
                }
            }
        }

        CardHelp {
            anchors.left: parent.left
            anchors.right: no.left
            anchors.rightMargin: DarkUI.space14
            anchors.verticalCenter: parent.verticalCenter
            help: view.help
        }

        DarkSecondaryButton {
            id: no
            anchors.right: always.left
            anchors.rightMargin: DarkUI.space8
            text: qsTr("No")
            Accessible.description: view.model.noHelp
            onClicked: view.model.decline()
        }

        DarkPrimaryButton {
            id: always
            anchors.right: parent.right
            width: Math.ceil(implicitWidth) // whole px, for sharp edges
            text: qsTr("Always")
            Accessible.description: view.model.alwaysHelp
            Accessible.defaultButton: true
            onClicked: view.model.accept()
        }
    }
}
