// The content of the command center: state and main button, modes, rows of windows, quit.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.CommandCenter
import Vantle.Kit

FocusScope {
    id: content

    required property CommandCenterModel model
    readonly property int margin: DarkUI.space20
    readonly property int inner: width - 2 * margin

    // Lays out now instead of before the next frame, for callers that need the height.
    function settle(): void {
        modes.settle();
        column.forceLayout();
    }

    implicitWidth: DarkUI.commandCenterWidth
    implicitHeight: column.implicitHeight

    component SectionBreak: Item {
        width: content.width
        height: DarkUI.space16 + DarkUI.hairlineWidth + DarkUI.space14

        DarkDivider {
            y: DarkUI.space16
            width: parent.width
        }
    }

    component Gap: Item {
        width: content.width
    }

    Column {
        id: column
        width: parent.width

        Item {
            x: content.margin
            width: content.inner
            height: headline.height + DarkUI.space2 + explanation.height + DarkUI.space18

            TextMetrics {
                id: titleState
                font: headline.font
                text: content.model.titleState
            }
            DarkText {
                id: headline
                readonly property real room: parent.width - keycap.width - DarkUI.space12
                // What does not fit beside the shortcut takes more lines, together with the time.
                readonly property bool wrapped: titleState.advanceWidth + time.implicitWidth > room
                y: DarkUI.space18
                width: wrapped ? room : Math.ceil(titleState.advanceWidth)
                text: wrapped ? content.model.title : content.model.titleState
                role: DarkUI.panelTitle
                wrapMode: wrapped ? Text.Wrap : Text.NoWrap
                Accessible.role: Accessible.Heading
                Accessible.name: content.model.title
            }
            TabularText {
                id: time
                anchors.left: headline.right
                y: headline.y
                visible: !headline.wrapped
                text: content.model.titleTime === "" ? "" : " · " + content.model.titleTime
                role: DarkUI.panelTitle
                Accessible.ignored: true
            }
            DarkText {
                id: explanation
                anchors.top: headline.bottom
                anchors.topMargin: DarkUI.space2
                width: parent.width - keycap.width - DarkUI.space12
                text: content.model.subtitle
                role: DarkUI.caption
                color: DarkUI.textSecondary
                wrapMode: Text.Wrap
            }
            Keycap {
                id: keycap
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.topMargin: DarkUI.space18
                text: content.model.shortcut
            }
        }

        WrappedReadyRow {
            x: content.margin
            width: content.inner
            visible: content.model.wrappedReady
            onClicked: content.model.openLastWeek()
        }

        QuestionRows {
            x: content.margin
            width: content.inner
            visible: content.model.questions.length > 0
            model: content.model
            onAnswered: (question, answer) => {
                // The row disappears with its question and must not take the focus along.
                enter.focusByKeyboard();
                content.model.answer(question, answer);
            }
        }

        Gap {
            height: DarkUI.space14
        }

        EnterButton {
            id: enter
            x: content.margin
            width: content.inner
            text: content.model.primaryText
            accent: content.model.primaryColor
            paused: content.model.paused
            focus: true
            onClicked: content.model.pressPrimary()
        }

        BackfillRow {
            x: content.margin
            width: content.inner
            visible: content.model.backfillChoices.length > 0
            choices: content.model.backfillChoices
            onChosen: minutes => content.model.backfill(minutes)
        }

        DarkText {
            x: content.margin
            width: content.inner
            visible: text !== ""
            topPadding: DarkUI.space10
            text: content.model.note
            role: DarkUI.caption
            color: DarkUI.textSecondary
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
        }

        SectionBreak {}

        Item {
            x: content.margin
            width: content.inner
            height: choose.height

            DarkKicker {
                id: choose
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("CHOOSE A MODE")
            }
            DarkText {
                id: anytime
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Switch anytime")
                role: DarkUI.small
                color: DarkUI.textTertiary
            }
        }

        Gap {
            height: DarkUI.space12
        }

        ModeChips {
            id: modes
            x: content.margin
            width: content.inner
            modes: content.model.modes
            adding: content.model.editor.shown && content.model.editor.adding
            onChosen: id => content.model.selectMode(id)
            onEditWanted: id => {
                editor.origin = id;
                content.model.editMode(id);
            }
            onDeleteWanted: id => content.model.deleteMode(id)
            onAddWanted: {
                editor.origin = "";
                content.model.addMode();
            }
        }

        Gap {
            visible: content.model.editor.shown
            height: DarkUI.space14
        }

        ModeEditorView {
            id: editor
            property string origin // the mode whose chip opened it; empty for a new mode
            x: content.margin
            width: content.inner
            visible: content.model.editor.shown
            editor: content.model.editor
        }

        SectionBreak {}

        DarkKicker {
            x: content.margin
            text: qsTr("REVIEW")
        }

        Gap {
            height: DarkUI.space6
        }

        Repeater {
            model: content.model.doors

            NavRow {
                required property int index
                required property string modelData

                x: content.margin - DarkUI.space10
                width: content.inner + DarkUI.space20
                title: modelData
                key: content.model.doorKey(index)
                shortcut: key === "" ? "" : qsTr("⌘%1").arg(key)
                onClicked: content.model.openDoor(index)
            }
        }

        Gap {
            height: DarkUI.space10
        }

        DarkDivider {
            width: content.width
        }

        Item {
            x: content.margin
            width: content.inner
            height: DarkUI.space44

            DarkText {
                anchors.left: parent.left
                anchors.right: quit.left
                anchors.rightMargin: DarkUI.space12
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Your focus history stays private on this Mac")
                role: DarkUI.small
                color: DarkUI.textTertiary
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
            }
            DarkText {
                id: quitKeys
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("⌘Q")
                role: DarkUI.small
                color: DarkUI.textTertiary
                Accessible.ignored: true
            }
            KitButton {
                kind: KitButton.Text
                id: quit
                anchors.right: quitKeys.left
                anchors.rightMargin: DarkUI.space8
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Quit")
                role: DarkUI.captionMedium
                Accessible.description: KitText.spoken(qsTr("Quit Vantle (⌘Q)"))
                onClicked: content.model.quit()
            }
            Shortcut {
                sequences: ["Ctrl+Q", "Meta+Q"]
                onActivated: content.model.quit()
            }
        }
    }

    Component.onCompleted: {
        settle();
        if (content.model.takePrimaryPulse())
            enter.pulse();
    }

    Connections {
        target: content.model.editor
        // The focused item is gone.
        function onShownChanged(): void {
            if (!content.model.editor.shown)
                modes.takeKeyboard(editor.origin);
        }
    }

    Connections {
        target: content.model
        function onPrimaryPulseWanted(): void {
            if (content.model.takePrimaryPulse())
                enter.pulse();
        }
    }
}
