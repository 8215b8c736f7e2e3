// A slider. Shows `value` and requests another with moved().
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitControl {
    id: slider

    property string name
    property real minimumValue: 0
    property real maximumValue: 1
    property real stepSize: 0 // 0 means continuous; arrow keys then step a twentieth
    property real value: 0
    property string valueText // for screen readers, after name and number
    property bool ringed: keyboardFocus
    // Clamped to the ends.
    readonly property real position: Math.max(0, Math.min((value - minimumValue)
                                     / Math.max(maximumValue - minimumValue, 1e-9), 1))
    readonly property real keyStep: stepSize > 0 ? stepSize : (maximumValue - minimumValue) / 20
    readonly property real pageSteps: 5 // steps of Page Up and Page Down
    signal moved(real value)

    function ask(wanted: real): void {
        const stepped = stepSize > 0
            ? minimumValue + Math.round((wanted - minimumValue) / stepSize) * stepSize : wanted;
        const kept = Math.max(minimumValue, Math.min(stepped, maximumValue));
        if (kept !== value)
            moved(kept);
    }
    function askAt(x: real): void {
        const way = Math.max(width - DarkUI.sliderKnobSize, 1);
        const part = (x - DarkUI.sliderKnobSize / 2) / way;
        ask(minimumValue + Math.max(0, Math.min(part, 1)) * (maximumValue - minimumValue));
    }

    implicitWidth: 200
    implicitHeight: DarkUI.sliderHeight
    opacity: enabled ? 1 : DarkUI.disabledOpacity

    Accessible.role: Accessible.Slider
    Accessible.name: name
    Accessible.description: valueText
    Accessible.focusable: true
    Accessible.onIncreaseAction: slider.ask(slider.value + slider.keyStep)
    Accessible.onDecreaseAction: slider.ask(slider.value - slider.keyStep)

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Right:
        case Qt.Key_Up:
            ask(value + keyStep);
            break;
        case Qt.Key_Left:
        case Qt.Key_Down:
            ask(value - keyStep);
            break;
        case Qt.Key_PageUp:
            ask(value + pageSteps * keyStep);
            break;
        case Qt.Key_PageDown:
            ask(value - pageSteps * keyStep);
            break;
        case Qt.Key_Home:
            ask(minimumValue);
            break;
        case Qt.Key_End:
            ask(maximumValue);
            break;
        default:
            event.accepted = false;
        }
    }

    Plate {
        id: track
        x: 0
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: DarkUI.sliderTrackHeight
        radius: height / 2
        color: DarkUI.sliderTrack

        Plate {
            width: knob.x + knob.width / 2
            height: parent.height
            radius: height / 2
            color: DarkUI.accent
        }
    }

    Plate {
        id: knob
        x: slider.position * (slider.width - width)
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.sliderKnobSize
        height: DarkUI.sliderKnobSize
        radius: width / 2
        color: DarkUI.knobFill

        FocusRing {
            shown: slider.ringed
            controlRadius: knob.radius
        }
    }

    MouseArea {
        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => {
            slider.forgetKeyboard();
            slider.askAt(mouse.x);
        }
        onPositionChanged: mouse => slider.askAt(mouse.x)
    }
}
