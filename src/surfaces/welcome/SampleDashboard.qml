// The upper part of the hours window, with sample hours.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Dashboard
import Vantle.Kit
import Vantle.Welcome

DarkWindowGlass {
    id: sample

    required property WelcomeSamples samples
    readonly property real margin: DarkUI.space24
    readonly property real inner: width - 2 * margin
    readonly property real skillsWidth: 246
    readonly property real wallHeight: 90
    readonly property real cardHeight: 208
    readonly property real slice: 0.3 // of the current hour

    shadowed: true
    width: WelcomeTokens.windowWidth
    height: column.height + 2 * margin

    Column {
        id: column
        x: sample.margin
        y: DarkUI.space18 + DarkUI.space2
        width: sample.inner
        spacing: DarkUI.space12

        Item {
            width: parent.width
            height: DarkUI.iconButtonSize + DarkUI.space10

            DarkText {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Your hours")
                role: DarkUI.titleL
            }

            Row {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: DarkUI.space8

                DarkSecondaryButton {
                    text: qsTr("Log time")
                }
                DarkSecondaryButton {
                    text: qsTr("Wrapped")
                }
                DarkPrimaryButton {
                    text: qsTr("Start building")
                }
            }
        }

        Row {
            spacing: DarkUI.space12

            Repeater {
                model: sample.samples.stats

                StatBlockView {
                    required property statBlock modelData
                    width: (sample.inner - 2 * DarkUI.space12) / 3
                    stat: modelData
                }
            }
        }

        DashboardCard {
            width: parent.width
            implicitHeight: sample.wallHeight
            heading: qsTr("Hour wall")
            detail: qsTr("46 hours")

            GlassDotWall {
                y: DarkUI.space4
                width: parent.width
                height: DarkUI.space36
                colors: sample.samples.wall
                sliceFraction: sample.slice
                sliceColor: DarkUI.accent
            }
        }

        Row {
            spacing: DarkUI.space12

            DashboardCard {
                width: sample.skillsWidth
                height: sample.cardHeight
                heading: qsTr("Hours by skill")

                Column {
                    Repeater {
                        model: sample.samples.totals

                        SkillTotalRow {
                            required property skillTotalLine modelData
                            width: sample.skillsWidth - 2 * DarkUI.space16
                            height: DarkUI.iconButtonSize
                            line: modelData
                        }
                    }
                }
            }

            DashboardCard {
                id: recent
                width: sample.inner - sample.skillsWidth - DarkUI.space12
                height: sample.cardHeight
                heading: qsTr("Recent sessions")
                detail: qsTr("58 sessions · 46 h 18 min")

                Column {
                    Repeater {
                        model: sample.samples.recent

                        SessionGroupRow {
                            required property recentLine modelData
                            width: recent.innerWidth
                            line: modelData
                        }
                    }
                }
            }
        }
    }
}
