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

    DarkMenuPicker {
        id: many
        x: 240
        y: 180
        title: "Shortcut"
        options: Array.from({ length: 40 }, (_, i) => "Shortcut " + (i + 1))
        currentIndex: 0
        onActivated: index => currentIndex = index
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
            picker.close();
            low.close();
            many.close();
            many.currentIndex = 0;
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

        function frameOf(item) {
            return item.mapToItem(scene, Qt.rect(0, 0, item.width, item.height));
        }
        // The row of that text as it can be seen and pressed, or null.
        function rowInSight(text) {
            const panel = many.made.panel;
            for (let i = 0; i < panel.stops().length; ++i) {
                const row = panel.stops()[i];
                const frame = frameOf(row);
                const room = frameOf(panel);
                if (row.text === text && frame.y >= room.y
                        && frame.y + frame.height <= room.y + room.height)
                    return row;
            }
            return null;
        }

        function test_menuOfManyRowsLeavesItsButtonFree() {
            mouseClick(many);
            verify(many.opened);
            const menu = frameOf(many.made.panel);
            const button = frameOf(many);
            verify(menu.y >= 0 && menu.y + menu.height <= scene.height, "it stays in the window");
            verify(menu.y + menu.height <= button.y || menu.y >= button.y + button.height,
                   "it does not lie over its button");
        }

        function test_keysReachTheLastOfManyRows() {
            many.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            keyClick(Qt.Key_End);
            verify(rowInSight("Shortcut 40"), "it has come into sight");
            keyClick(Qt.Key_Return);
            compare(many.currentIndex, 39);
            keyClick(Qt.Key_Space);
            verify(rowInSight("Shortcut 40"), "it opens at what is chosen");
            keyClick(Qt.Key_Home);
            verify(rowInSight("Shortcut 1"));
        }

        function test_wheelReachesTheLastOfManyRows() {
            mouseClick(many);
            const menu = frameOf(many.made.panel);
            for (let i = 0; i < 60 && !rowInSight("Shortcut 40"); ++i) {
                mouseWheel(scene, menu.x + 20, menu.y + menu.height / 2, 0, -240);
                wait(1);
            }
            tryVerify(() => rowInSight("Shortcut 40") !== null);
            const row = frameOf(rowInSight("Shortcut 40"));
            mouseClick(scene, row.x + 20, row.y + row.height / 2);
            compare(many.currentIndex, 39);
        }

        function test_escapeDismissesAPopover() {
            inside.forceActiveFocus();
            keyClick(Qt.Key_Escape);
            compare(dismissed.count, 1);
        }
    }
}
