// The idle panel with the modes of a new user.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.CommandCenter
import Vantle.Kit
import Vantle.Welcome

GlassBackground {
    id: panel

    required property WelcomeSamples samples
    readonly property real margin: DarkUI.space20
    readonly property real inner: width - 2 * margin
    readonly property int chosen: 1
    readonly property sampleApp chosenMode: samples.modes[chosen]

    component Break: Item {
        width: panel.width
        height: DarkUI.space16 + DarkUI.hairlineWidth + DarkUI.space14

        DarkDivider {
            y: DarkUI.space16
            width: parent.width
        }
    }

    component Door: NavRow {
        x: panel.margin - DarkUI.space10
        width: panel.inner + DarkUI.space20
    }

    width: DarkUI.commandCenterWidth
    height: column.height

    Column {
        id: column
        width: parent.width
        topPadding: DarkUI.space18

        Item {
            x: panel.margin
            width: panel.inner
            height: headline.height + DarkUI.space2 + explanation.height + DarkUI.space14

            DarkText {
                id: headline
                text: qsTr("Ready to focus")
                role: DarkUI.panelTitle
            }
            DarkText {
                id: explanation
                y: headline.height + DarkUI.space2
                text: qsTr("Choose where your effort should go.")
                role: DarkUI.caption
                color: DarkUI.textSecondary
            }
            Keycap {
                anchors.right: parent.right
                text: qsTr("⌥⌘B")
            }
        }

        EnterButton {
            x: panel.margin
            width: panel.inner
            text: qsTr("Enter %1 Mode").arg(KitText.isolated(panel.chosenMode.skillName))
            accent: panel.chosenMode.color
        }

        Break {}

        Item {
            x: panel.margin
            width: panel.inner
            height: choose.height + DarkUI.space12

            DarkKicker {
                id: choose
                text: qsTr("CHOOSE A MODE")
            }
            DarkText {
                anchors.right: parent.right
                text: qsTr("Switch anytime")
                role: DarkUI.small
                color: DarkUI.textTertiary
            }
        }

        Flow {
            x: panel.margin
            width: panel.inner
            spacing: DarkUI.chipGap

            Repeater {
                model: panel.samples.modes

                DarkChip {
                    required property sampleApp modelData
                    required property int index
                    large: true
                    text: modelData.skillName
                    dotColor: modelData.color
                    checked: index === panel.chosen
                    selectedTint: checked ? modelData.color : DarkUI.clear
                }
            }

            NewModeChip {
                active: false
            }
        }

        Break {}

        DarkKicker {
            x: panel.margin
            bottomPadding: DarkUI.space6
            text: qsTr("REVIEW")
        }

        Door {
            title: qsTr("Dashboard")
            shortcut: qsTr("⌘D")
        }
        Door {
            title: qsTr("Wrapped")
        }
        Door {
            title: qsTr("Notes")
        }
        Door {
            title: qsTr("Settings")
            shortcut: qsTr("⌘,")
        }

        Item {
            width: panel.width
            height: DarkUI.space10 + DarkUI.hairlineWidth + DarkUI.space44

            DarkDivider {
                y: DarkUI.space10
                width: parent.width
            }
            DarkText {
                id: promise
                x: panel.margin
                y: DarkUI.space10 + (DarkUI.space44 - height) / 2
                width: quit.x - x - DarkUI.space12
                text: qsTr("Your focus history stays private on this Mac")
                wrapMode: Text.Wrap
                maximumLineCount: 2
                role: DarkUI.small
                color: DarkUI.textTertiary
            }
            DarkText {
                id: quit
                anchors.right: keys.left
                anchors.rightMargin: DarkUI.space8
                anchors.verticalCenter: promise.verticalCenter
                text: qsTr("Quit")
                role: DarkUI.captionMedium
                color: DarkUI.textSecondary
            }
            DarkText {
                id: keys
                anchors.right: parent.right
                anchors.rightMargin: panel.margin
                anchors.verticalCenter: promise.verticalCenter
                text: qsTr("⌘Q")
                role: DarkUI.small
                color: DarkUI.textTertiary
            }
        }
    }
}
