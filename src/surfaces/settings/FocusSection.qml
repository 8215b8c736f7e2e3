// When a session pauses, what a day shall hold, and what runs at both ends of a session.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

SettingsSection {
    id: section

    required property SettingsView model

    title: qsTr("FOCUS")

    SettingsCard {
        width: parent.width

        Item {
            width: parent.width
            implicitHeight: idle.y + idle.height + DarkUI.space14

            Column {
                id: idle
                x: DarkUI.space16
                y: DarkUI.space14
                width: parent.width - 2 * x

                DarkText {
                    text: section.model.idleTitle
                    role: DarkUI.bodyMedium
                }

                Item {
                    width: parent.width
                    height: DarkUI.space6 + slider.height

                    DarkSlider {
                        id: slider
                        y: DarkUI.space6
                        width: parent.width
                        name: section.model.idleTitle
                        minimumValue: 1
                        maximumValue: 10
                        stepSize: 1
                        value: section.model.idleMinutes
                        valueText: section.model.idleCaption
                        onMoved: value => section.model.idleMinutes = value
                    }
                }

                SettingsCaption {
                    topPadding: role.leading + DarkUI.space2
                    width: parent.width - DarkUI.space20
                    text: section.model.idleCaption
                }
            }
        }

        SettingsRow {
            width: parent.width
            title: section.model.title(SettingsView.GoalRow)
            caption: section.model.caption(SettingsView.GoalRow)

            control: [
                DarkText {
                    anchors.verticalCenter: parent.verticalCenter
                    rightPadding: DarkUI.space4
                    text: section.model.goalText
                    role: DarkUI.bodyStrong
                },
                StepChip {
                    label: "−"
                    name: qsTr("Half an hour less")
                    exhausted: section.model.isGoalLowest
                    onAction: section.model.stepGoal(-1)
                },
                StepChip {
                    label: "+"
                    name: qsTr("Half an hour more")
                    exhausted: section.model.isGoalHighest
                    onAction: section.model.stepGoal(1)
                }
            ]
        }

        ToggleRow {
            id: link
            width: parent.width
            title: section.model.title(SettingsView.FocusLinkRow)
            caption: section.model.caption(SettingsView.FocusLinkRow)
            checked: section.model.focusLinked
            onToggled: checked => section.model.focusLinked = checked

            // Without a shortcut in the list the chosen ones can still be taken back.
            Column {
                width: parent.width
                visible: section.model.focusLinked
                         && (!section.model.hasNoShortcuts || section.model.startChoice > 0
                             || section.model.stopChoice > 0)
                topPadding: 7
                spacing: DarkUI.space8

                ShortcutChoice {
                    width: parent.width
                    title: section.model.title(SettingsView.StartShortcutRow)
                    options: section.model.startChoices
                    chosen: section.model.startChoice
                    onActivated: choice => section.model.chooseStartShortcut(choice)
                }

                ShortcutChoice {
                    width: parent.width
                    title: section.model.title(SettingsView.StopShortcutRow)
                    options: section.model.stopChoices
                    chosen: section.model.stopChoice
                    onActivated: choice => section.model.chooseStopShortcut(choice)
                }
            }

            Item {
                width: parent.width
                height: open.height + 7
                visible: section.model.focusLinked && section.model.hasNoShortcuts

                SettingsCaption {
                    anchors.verticalCenter: open.verticalCenter
                    width: parent.width - open.width - DarkUI.space20
                    text: qsTr("No Shortcuts found yet. Make one, then flip this off and on.")
                    color: DarkUI.textSecondary
                }

                DarkSecondaryButton {
                    id: open
                    anchors.right: parent.right
                    y: 7
                    text: section.model.action(SettingsView.FocusLinkRow)
                    role: DarkUI.captionMedium
                    onClicked: section.model.openShortcuts()
                }
            }

            SettingsFeedback {
                width: parent.width
                topPadding: role.leading + DarkUI.space6
                failed: true
                text: section.model.focusLinked ? section.model.shortcutsFailure : ""
            }
        }
    }
}
