// The form that logs time by hand.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.QuickLog

FocusScope {
    id: form

    required property QuickLogView model
    readonly property real margin: 32

    function step(steps: int): void {
        model.stepDuration(steps);
        stepped.say(model.durationSpoken);
    }

    focus: true
    implicitWidth: 460
    implicitHeight: column.y + column.height + DarkUI.space20

    Keys.onEscapePressed: model.cancel()

    Column {
        id: column
        x: form.margin
        y: DarkUI.space6
        width: form.width - 2 * form.margin

        DarkText {
            text: qsTr("Add time manually")
            role: DarkUI.titleL
            Accessible.role: Accessible.Heading
        }

        DarkText {
            width: parent.width
            topPadding: role.leading + DarkUI.space6
            text: qsTr("For work the clock didn’t see.\n"
                       + "It joins your totals and is marked as manual.")
            role: DarkUI.caption
            color: DarkUI.textSecondary
            wrapMode: Text.Wrap
        }

        FormLabel {
            topPadding: DarkUI.space20
            bottomPadding: DarkUI.space8
            text: qsTr("Skill")
        }

        SkillPicker {
            width: parent.width
            title: qsTr("Skill")
            options: form.model.skillNames
            currentIndex: form.model.skillIndex
            skillColor: form.model.skillColor
            onActivated: index => form.model.skillIndex = index
        }

        Item {
            width: parent.width
            height: lengthLabel.height

            FormLabel {
                id: lengthLabel
                topPadding: DarkUI.space20
                bottomPadding: DarkUI.space8
                text: qsTr("How long did you work?")
            }

            DarkText {
                anchors.right: parent.right
                anchors.baseline: lengthLabel.baseline
                text: qsTr("1 min to 16 h")
                role: DarkUI.caption
                color: DarkUI.textTertiary
            }
        }

        Item {
            width: parent.width
            height: DarkUI.figureFieldHeight

            FigureField {
                id: hours
                unit: qsTr("hours")
                name: qsTr("Hours worked")
                focus: true
                wrong: form.model.isTimeWrong
                help: form.model.isTimeWrong ? form.model.errorMessage : ""
                text: form.model.hoursText
                onEdited: form.model.hoursText = hours.text
                onFocusLost: form.model.normalizeDuration()
                onAccepted: form.model.logEntry()
            }

            FigureField {
                id: minutes
                anchors.left: hours.right
                anchors.leftMargin: DarkUI.space8
                unit: qsTr("minutes")
                name: qsTr("Minutes worked")
                help: qsTr("Enter a number of minutes")
                text: form.model.minutesText
                onEdited: form.model.minutesText = minutes.text
                onFocusLost: form.model.normalizeDuration()
                onAccepted: form.model.logEntry()
            }

            Row {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: DarkUI.space8

                StepChip {
                    label: "−"
                    large: true
                    name: qsTr("Time worked, 5 minutes less")
                    Accessible.description: form.model.durationSpoken
                    onAction: form.step(-1)
                }

                StepChip {
                    label: "+"
                    large: true
                    name: qsTr("Time worked, 5 minutes more")
                    Accessible.description: form.model.durationSpoken
                    onAction: form.step(1)
                }
            }
        }

        FormLabel {
            topPadding: DarkUI.space20
            bottomPadding: DarkUI.space8
            text: qsTr("What did you work on?")
        }

        DarkTextField {
            id: note
            width: parent.width
            minHeight: DarkUI.formFieldHeight
            name: qsTr("Work note")
            placeholder: qsTr("e.g. Drafted the landing page")
            help: qsTr("Optional. Helps you remember what moved forward.")
            onEdited: form.model.note = note.text
            onAccepted: form.model.logEntry()
        }

        DarkText {
            topPadding: DarkUI.space8
            text: qsTr("Optional. Helps you remember what moved forward.")
            role: DarkUI.small
            color: DarkUI.textTertiary
            Accessible.ignored: true
        }

        Item {
            visible: form.model.errorMessage !== ""
            width: parent.width
            height: DarkUI.space16 + message.height

            KitIcon {
                y: DarkUI.space16 + (DarkUI.captionMedium.line - height) / 2
                width: DarkUI.iconMedium
                height: DarkUI.iconMedium
                name: "warning"
                color: DarkUI.dangerText
            }

            DarkText {
                id: message
                x: DarkUI.space14 + DarkUI.space8
                y: DarkUI.space16
                width: parent.width - x
                text: form.model.errorMessage
                role: DarkUI.captionMedium
                color: DarkUI.dangerText
                wrapMode: Text.Wrap
                Accessible.role: Accessible.AlertMessage
            }
        }

        Row {
            anchors.right: parent.right
            topPadding: DarkUI.space24
            spacing: DarkUI.space8

            DarkSecondaryButton {
                implicitHeight: DarkUI.formButtonHeight
                text: qsTr("Cancel")
                onClicked: form.model.cancel()
            }

            DarkPrimaryButton {
                implicitHeight: DarkUI.formButtonHeight
                text: qsTr("Add to history")
                onClicked: form.model.logEntry()
            }
        }
    }

    Announcer {
        id: stepped
    }

    Announcer {
        text: form.model.errorMessage
    }

    Connections {
        target: form.model
        function onDurationChanged(): void {
            if (hours.text !== form.model.hoursText)
                hours.text = form.model.hoursText;
            if (minutes.text !== form.model.minutesText)
                minutes.text = form.model.minutesText;
        }
        function onHoursWanted(): void {
            hours.input.forceActiveFocus(Qt.OtherFocusReason);
            hours.input.selectAll();
        }
    }
}
