// The review window: a picker of periods above pages, which also turn with arrow keys, Home and
// End.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Wrapped

FocusScope {
    id: view

    required property WrappedView model
    readonly property alias turning: stack.turning
    readonly property real stackHeight: 514 // leaves room for the pager and the sharing result

    function turnToFirst(): void {
        stack.pass(() => {
            while (view.model.canTurnBack)
                view.model.turnBack();
        });
    }
    function turnToLast(): void {
        stack.pass(() => {
            while (view.model.canTurnOn)
                view.model.turnOn();
        });
    }

    focus: true
    implicitWidth: 440
    implicitHeight: 660

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Left:
            model.turnBack();
            break;
        case Qt.Key_Right:
            model.turnOn();
            break;
        case Qt.Key_Home:
            turnToFirst();
            break;
        case Qt.Key_End:
            turnToLast();
            break;
        case Qt.Key_Escape:
            view.Window.window.close();
            break;
        default:
            event.accepted = false;
        }
    }

    AmbientDotField {
        anchors.fill: parent
        clip: true // keeps halos off the window's edge
        quiet: {
            const across = (y, height) => Qt.rect(stack.x, y, stack.width, height);
            const found = [across(stack.y, DarkUI.kicker.line)];
            if (pager.visible)
                found.push(Qt.rect(pager.x, pager.y, pager.width, pager.height));
            const foot = stack.current?.ruledFoot;
            if (foot)
                found.push(across(stack.y + foot.y, DarkUI.hairlineWidth));
            return found;
        }
    }

    SegmentedPicker {
        x: DarkUI.space32
        y: DarkUI.space8
        width: view.width - 2 * x
        name: qsTr("Period")
        options: Array.from(view.model.segmentLabels)
        currentIndex: view.model.segmentIndex
        onActivated: index => view.model.pickSegment(index)
    }

    PageStack {
        id: stack
        x: DarkUI.space36
        y: DarkUI.space64
        width: view.width - 2 * x
        height: view.stackHeight
        focus: true
        model: view.model
    }

    Pager {
        id: pager
        x: DarkUI.space32
        anchors.bottom: parent.bottom
        anchors.bottomMargin: DarkUI.space20
        width: view.width - 2 * x
        visible: view.model.hasPager
        model: view.model
        onDropped: stack.current.forceActiveFocus(Qt.TabFocusReason)
    }
}
