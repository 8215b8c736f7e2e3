// The head: title, buttons for other windows, start and stop.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

FocusScope {
    id: head

    required property DashboardView model
    required property bool narrow
    // Puts the title above the controls if both do not fit on one line.
    readonly property bool stacked: narrow || title.implicitWidth + DarkUI.space12 + actionsWidth
                                              > width
    readonly property real actionsWidth: logging.width + wrapped.width + 2 * actions.spacing
                                         + (open ? chip.implicitWidth : start.width)
    property bool open: false // follows the model through follow()
    readonly property real leastHeight: 34

    // A control that replaces the focused one takes the focus with its ring.
    function follow(): void {
        if (open === model.isOpen)
            return;
        const hadFocus = start.activeFocus || chip.activeFocus;
        const byKeyboard = start.keyboardFocus || chip.keyboardFocus;
        open = model.isOpen;
        const fresh = open ? chip : start;
        if (!hadFocus)
            fresh.focus = true;
        else if (byKeyboard)
            fresh.focusByKeyboard();
        else
            fresh.forceActiveFocus(Qt.OtherFocusReason);
    }

    Component.onCompleted: {
        open = model.isOpen;
        (open ? chip : start).focus = true;
    }

    Connections {
        target: head.model
        function onTicked(): void {
            head.follow();
        }
    }

    implicitHeight: stacked ? title.height + DarkUI.space8 + actions.height
                            : Math.max(leastHeight, actions.height)

    DarkText {
        id: title
        y: head.stacked ? 0 : (head.height - height) / 2
        width: head.stacked ? head.width : actions.x - DarkUI.space12
        text: qsTr("Your hours")
        role: DarkUI.titleL
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
    }

    Flow {
        id: actions
        x: head.stacked ? 0 : head.width - width
        y: head.stacked ? title.height + DarkUI.space8 : (head.height - height) / 2
        width: head.stacked ? head.width : head.actionsWidth
        spacing: DarkUI.space8

        DarkSecondaryButton {
            id: logging
            text: qsTr("Log time")
            onClicked: head.model.openQuickLog()
        }

        DarkSecondaryButton {
            id: wrapped
            text: qsTr("Wrapped")
            help: qsTr("A recap of your work, computed on this Mac")
            onClicked: head.model.openWrapped()
        }

        DarkPrimaryButton {
            id: start
            visible: !head.open
            text: qsTr("Start building")
            onClicked: head.model.toggle()
        }

        StateChipButton {
            id: chip
            visible: head.open
            model: head.model
            room: head.width
        }
    }
}
