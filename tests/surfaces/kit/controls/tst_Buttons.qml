import QtQuick
import QtTest
import Vantle.Kit

Item {
    id: scene
    width: 400
    height: 360

    Column {
        spacing: 20

        DarkPrimaryButton {
            id: first
            text: "Start"
        }
        DarkSecondaryButton {
            id: second
            text: "Log time"
        }
        DarkSecondaryButton {
            id: off
            text: "Never"
            enabled: false
        }
        DarkIconButton {
            id: iconButton
            name: "Edit"
            icon: "pencil"
        }
        BrandToggle {
            id: toggle
            name: "A switch"
            onToggled: on => checked = on
        }
        StepChip {
            id: plus
            label: "+"
        }
        DarkLink {
            id: link
            text: "Elsewhere"
        }
    }

    SignalSpy {
        id: clicks
        signalName: "clicked"
    }

    TestCase {
        name: "Buttons"
        when: windowShown

        function init() {
            toggle.checked = false;
            scene.forceActiveFocus();
            clicks.clear();
        }

        function watch(control) {
            clicks.target = control;
            clicks.clear();
        }

        function test_clickPresses_data() {
            return [{control: first}, {control: second}, {control: iconButton}, {control: link}];
        }
        function test_clickPresses(data) {
            watch(data.control);
            mouseClick(data.control);
            compare(clicks.count, 1);
        }

        function test_releaseBesideDoesNot() {
            watch(first);
            mousePress(first);
            verify(first.pressed);
            mouseMove(first, 10, 200);
            mouseRelease(first, 10, 200);
            compare(clicks.count, 0);
            verify(!first.pressed);
        }

        function test_spaceAndReturnPress() {
            watch(first);
            first.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            compare(clicks.count, 1);
            keyPress(Qt.Key_Space);
            verify(first.pressed);
            compare(clicks.count, 1);
            keyRelease(Qt.Key_Space);
            compare(clicks.count, 2);
            keyClick(Qt.Key_Enter);
            compare(clicks.count, 3);
        }

        function test_spaceHeldWhileFocusLeavesDoesNotPress() {
            watch(first);
            first.forceActiveFocus(Qt.TabFocusReason);
            keyPress(Qt.Key_Space);
            second.forceActiveFocus(Qt.TabFocusReason);
            keyRelease(Qt.Key_Space);
            compare(clicks.count, 0);
            verify(!first.pressed);
        }

        function test_disabledDoesNothingAndIsPassedOver() {
            watch(off);
            mouseClick(off);
            compare(clicks.count, 0);
            second.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Tab);
            verify(iconButton.activeFocus);
        }

        function test_ringIsForTheKeyboardOnly() {
            first.forceActiveFocus();
            verify(first.activeFocus);
            verify(!first.ringed, "focus by code shows no ring");
            keyClick(Qt.Key_Tab);
            verify(second.activeFocus);
            verify(second.ringed);
            mousePress(second);
            verify(!second.ringed, "the pointer takes it away");
            mouseRelease(second);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(first.ringed);
            verify(!second.ringed);
        }

        function test_clickLeavesTheFocusWhereItIs() {
            first.forceActiveFocus();
            mouseClick(second);
            verify(first.activeFocus);
        }

        function test_toggleAsksForTheOtherState() {
            mouseClick(toggle);
            verify(toggle.checked);
            toggle.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            verify(!toggle.checked);
        }

        function test_hoverShows() {
            mouseMove(scene, 390, 290);
            verify(!second.hovered);
            mouseMove(second, 5, 5);
            verify(second.hovered);
            mouseMove(scene, 390, 290);
            verify(!second.hovered);
        }

        function test_namesAreReadOut() {
            compare(first.Accessible.name, "Start");
            compare(first.Accessible.role, Accessible.Button);
            compare(toggle.Accessible.role, Accessible.CheckBox);
            compare(iconButton.Accessible.name, "Edit");
            compare(link.Accessible.role, Accessible.Link);
            compare(plus.Accessible.name, "More");
        }

        function test_everyTargetCanBeHit() {
            for (const control of [first, second, iconButton, plus, link])
                verify(control.height >= 24, control.toString());
        }
    }
}
