import QtQuick
import QtTest
import Vantle.Kit

Item {
    id: scene
    width: 400
    height: 300

    DarkMenuPicker {
        id: picker
        x: 20
        y: 20
        title: "Away after"
        options: ["1 minute", "3 minutes", "5 minutes"]
        currentIndex: 1
        onActivated: index => currentIndex = index
    }
    DarkMenuPicker {
        id: low
        x: 20
        y: 265
        title: "Low"
        options: ["One", "Two", "Three"]
        currentIndex: 0
    }

    DarkPopover {
        id: popover
        x: 200
        y: 60
        width: 150
        height: 100

        DarkSecondaryButton {
            id: inside
            x: 10
            y: 10
            text: "Inside"
        }
    }

    SignalSpy {
        id: dismissed
        target: popover
        signalName: "dismissed"
    }

    TestCase {
        name: "Menus"
        when: windowShown

        function init() {
            picker.currentIndex = 1;
            picker.opened = false;
            low.opened = false;
            mouseMove(scene, 390, 10);
            scene.forceActiveFocus();
            dismissed.clear();
        }

        function test_openChooseAndCloseByKeys() {
            picker.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            verify(picker.opened);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Return);
            verify(!picker.opened);
            compare(picker.currentIndex, 2);
            compare(picker.currentText, "5 minutes");
            verify(picker.activeFocus, "the focus comes back");
            verify(picker.ringed);
        }

        function test_arrowsGoRound() {
            picker.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Down);
            verify(picker.opened);
            keyClick(Qt.Key_Up);
            keyClick(Qt.Key_Up);
            keyClick(Qt.Key_Return);
            compare(picker.currentIndex, 2);
        }

        function test_endAndHome() {
            picker.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            keyClick(Qt.Key_End);
            keyClick(Qt.Key_Home);
            keyClick(Qt.Key_Space);
            compare(picker.currentIndex, 0);
        }

        function test_escapeClosesAndChoosesNothing() {
            picker.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Escape);
            verify(!picker.opened);
            compare(picker.currentIndex, 1);
            verify(picker.activeFocus);
        }

        function test_chooseByPointer() {
            mouseClick(picker);
            verify(picker.opened);
            // The third row, below the control.
            mouseClick(scene, 60, picker.y + picker.height + 8 + 2.5 * 28);
            verify(!picker.opened);
            compare(picker.currentIndex, 2);
        }

        function test_pressBesideClosesIt() {
            mouseClick(picker);
            mouseClick(scene, 390, 200);
            verify(!picker.opened);
            compare(picker.currentIndex, 1);
        }

        function test_menuAtTheBottomOpensUpwards() {
            mouseClick(low);
            verify(low.opened);
            mouseClick(scene, 60, 265 - 8 - 0.5 * 28);
            verify(!low.opened);
        }

        function test_escapeDismissesAPopover() {
            inside.forceActiveFocus();
            keyClick(Qt.Key_Escape);
            compare(dismissed.count, 1);
        }
    }
}
