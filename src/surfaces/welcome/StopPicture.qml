// The clock of the practice session.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Item {
    id: picture

    required property WelcomeView model

    implicitHeight: WelcomeTokens.stageHeight

    Column {
        anchors.centerIn: parent
        spacing: DarkUI.space8

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: DarkUI.space14

            GlassDot {
                anchors.verticalCenter: parent.verticalCenter
                width: WelcomeTokens.clockDot
                height: WelcomeTokens.clockDot
                color: picture.model.practiceColor
            }
            DarkText {
                anchors.verticalCenter: parent.verticalCenter
                text: picture.model.practiceSkill
                role: WelcomeTokens.clockSkill
                color: DarkUI.textSecondary
            }
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: WelcomeTokens.clock.size * WelcomeTokens.wordSpace
            Accessible.role: Accessible.StaticText
            Accessible.name: picture.model.practiceTime

            Repeater {
                model: picture.model.practiceWords

                TabularText {
                    required property string modelData
                    required property int index
                    text: modelData
                    role: WelcomeTokens.clock
                    color: index % 2 === 0 ? DarkUI.textPrimary : DarkUI.textTertiary
                    Accessible.ignored: true
                }
            }
        }
    }
}
