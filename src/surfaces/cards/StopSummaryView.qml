// The card after a session: what it added to the wall, and a line for a note.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Cards
import Vantle.Kit
import Vantle.Panel

FloatingSurface {
    id: view

    required property StopSummaryModel model
    property alias noteText: note.text

    groundHeight: footer.y + footer.height + DarkUI.space20

    Accessible.role: Accessible.Dialog
    Accessible.name: view.model.durationLabel

    Keys.onEscapePressed: view.model.turnAway()
    Keys.onReturnPressed: view.model.submit()
    Keys.onEnterPressed: view.model.submit()

    Connections {
        target: view.model
        function onNoteFocusRequested(): void {
            note.input.forceActiveFocus(Qt.OtherFocusReason);
        }
    }

    Column {
        id: said
        x: DarkUI.space20
        y: DarkUI.space20 - DarkUI.space2
        width: parent.width - 2 * DarkUI.space20

        DisplayRole {
            id: figure
            family: view.model.durationFamily
            size: DarkUI.duration.size
            line: DarkUI.duration.line
            tracking: DarkUI.duration.tracking
        }

        Row {
            height: DarkUI.duration.line
            spacing: DarkUI.duration.size * wordSpace
            readonly property real wordSpace: 0.24 // em

            Accessible.role: Accessible.StaticText
            Accessible.name: view.model.durationLabel

            Repeater {
                model: view.model.durationWords

                DarkText {
                    required property string modelData
                    required property int index
                    text: modelData
                    role: figure
                    color: index % 2 === 0 ? DarkUI.textPrimary : DarkUI.textTertiary
                    Accessible.ignored: true
                }
            }
        }

        Item {
            width: 1
            height: DarkUI.space4
        }

        SkillLabel {
            skillName: view.model.skillName
            skillColor: view.model.skillColor
        }

        Item {
            width: 1
            height: DarkUI.space14
        }

        DarkText {
            visible: text !== ""
            width: parent.width
            text: view.model.firstSessionText
            role: DarkUI.panelTitle
            wrapMode: Text.Wrap
        }

        Item {
            visible: view.model.firstSessionText !== ""
            width: 1
            height: DarkUI.space4
        }

        Flow {
            width: parent.width
            // A result too wide to stand beside its dots wraps below them.
            spacing: view.model.dotCount > 0 && !wraps ? DarkUI.space10 : DarkUI.space8
            readonly property bool wraps: hours.width + DarkUI.space10 + result.width > width

            Row {
                id: hours
                visible: view.model.dotCount > 0
                height: result.height
                spacing: dotGap
                readonly property int dotGap: 5
                readonly property int dotSize: 13

                Repeater {
                    model: view.model.dotCount

                    GlassDot {
                        anchors.verticalCenter: parent?.verticalCenter
                        width: (parent as Row)?.dotSize ?? 0
                        height: width
                        color: view.model.skillColor
                    }
                }
            }

            Item {
                id: slice
                visible: view.model.sliceFraction > 0
                width: DarkUI.summaryDotSize
                height: result.height

                // The current hour, filled clockwise from the top.
                GlassDot {
                    anchors.verticalCenter: parent.verticalCenter
                    width: parent.width
                    height: width
                    fraction: view.model.sliceFraction
                    color: view.model.skillColor
                }
            }

            DarkText {
                id: result
                width: Math.min(implicitWidth, said.width - (slice.visible ? slice.width
                                                             + DarkUI.space8 : 0))
                text: view.model.resultText
                balanced: false
                wrapMode: Text.Wrap
                role: view.model.dotCount > 0 ? DarkUI.bodyMedium : DarkUI.body
                color: view.model.dotCount > 0 ? DarkUI.textPrimary : DarkUI.textSecondary
            }
        }

        Item {
            visible: view.model.invitationText !== ""
            width: 1
            height: DarkUI.space14
        }

        DarkText {
            visible: text !== ""
            width: parent.width
            text: view.model.invitationText
            role: DarkUI.caption
            color: DarkUI.textPrimary
            wrapMode: Text.Wrap
        }
    }

    DarkTextField {
        id: note
        x: DarkUI.space20
        y: said.y + said.height + (view.model.spotlightNote ? DarkUI.space10 : DarkUI.space16)
        width: said.width
        focus: true
        name: qsTr("Work note")
        placeholder: qsTr("What did you work on? Optional")
        limit: view.model.noteLimit
        clearable: true
        clearName: qsTr("Clear note")
        onTextChanged: view.model.takeNote(text)
        onKeyboardWanted: view.model.notePressed()
        onAccepted: view.model.submit()

        InvitingGlow {
            anchors.fill: parent
            visible: view.model.spotlightNote
        }
    }

    Item {
        id: below
        x: note.x
        y: note.y + note.height + DarkUI.space8 + 1
        width: note.width
        height: lockText.height

        KitIcon {
            id: lockIcon
            anchors.verticalCenter: parent.verticalCenter
            readonly property real bearing: 1.5 // of the icon's shape within its box
            x: -bearing
            width: DarkUI.iconTiny
            height: DarkUI.iconTiny
            name: "lock"
            color: DarkUI.textTertiary
        }

        DarkText {
            id: lockText
            x: textLeft
            width: parent.width - x - (counter.text === "" ? 0 : counter.width + DarkUI.space8)
            readonly property real textLeft: 13 // leaves 6 px after the lock
            text: view.model.lockText
            role: DarkUI.small
            color: DarkUI.textTertiary
            wrapMode: Text.Wrap
        }

        TabularText {
            id: counter
            anchors.right: parent.right
            text: view.model.counterText
            role: DarkUI.small
            color: DarkUI.textTertiary
        }
    }

    Item {
        id: footer
        x: note.x
        y: below.y + below.height + DarkUI.space16
        width: note.width
        height: done.height

        DarkText {
            anchors.left: parent.left
            anchors.right: done.left
            anchors.rightMargin: DarkUI.space20
            anchors.verticalCenter: parent.verticalCenter
            text: view.model.hintText
            role: DarkUI.small
            color: DarkUI.textTertiary
            wrapMode: Text.Wrap
        }

        DarkPrimaryButton {
            id: done
            anchors.right: parent.right
            width: Math.ceil(implicitWidth) // whole px, for sharp edges
            text: view.model.doneText
            onClicked: view.model.submit()
        }
    }

    DarkCloseButton {
        anchors.right: parent.right
        y: DarkUI.space16
        anchors.rightMargin: DarkUI.space16
        name: view.model.closeLabel
        onClicked: view.model.submit()
    }
}
