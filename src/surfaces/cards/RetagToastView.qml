// The toast after a change of skill.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Cards
import Vantle.Kit
import Vantle.Panel

FloatingSurface {
    id: view

    required property RetagToastModel model

    inTime: DarkUI.toastInTime
    outTime: DarkUI.toastOutTime
    drop: 0
    radius: groundHeight / 2
    shadow: DarkUI.shadowToast
    groundWidth: line.width + DarkUI.space12 + DarkUI.space16
    groundHeight: height40

    readonly property int height40: 40
    readonly property real checkStroke: 1.75
    readonly property real checkLight: 0.35 // lighter than the skill

    Accessible.role: Accessible.Notification
    Accessible.name: view.model.spoken

    Row {
        id: line
        x: DarkUI.space12
        height: parent.height
        spacing: DarkUI.space10

        Plate {
            anchors.verticalCenter: parent.verticalCenter
            width: DarkUI.swatchSize
            height: DarkUI.swatchSize
            radius: DarkUI.swatchSize / 2
            color: Tint.alpha(view.model.skillColor, 0.22)

            KitIcon {
                anchors.centerIn: parent
                width: DarkUI.iconSmall
                height: DarkUI.iconSmall
                name: "check"
                stroke: view.checkStroke
                color: Tint.lightened(view.model.skillColor, view.checkLight)
            }
        }

        DarkText {
            anchors.verticalCenter: parent.verticalCenter
            text: view.model.text
            role: DarkUI.bodyMedium
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: DarkUI.hairlineWidth
            height: DarkUI.space14
            color: DarkUI.fillPressed
        }

        SkillLabel {
            anchors.verticalCenter: parent.verticalCenter
            role: DarkUI.body
            gap: DarkUI.space10
            skillName: view.model.skillName
            skillColor: view.model.skillColor
        }
    }
}
