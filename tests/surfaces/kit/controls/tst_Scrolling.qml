import QtQuick
import QtTest
import Vantle.Kit

Item {
    id: scene
    width: 300
    height: 200

    DarkScrollView {
        id: view
        anchors.fill: parent

        Column {
            width: parent.width

            Repeater {
                id: rows
                model: 20

                DarkSecondaryButton {
                    required property int index
                    text: "Row " + index
                    height: 40
                }
            }
        }
    }

    TestCase {
        name: "Scrolling"
        when: windowShown

        function init() {
            view.contentY = 0;
        }

        function test_keysGoToTheEndsAndNoFurther() {
            rows.itemAt(0).forceActiveFocus();
            keyClick(Qt.Key_End);
            compare(view.contentY, 800 - 200);
            keyClick(Qt.Key_PageDown);
            compare(view.contentY, 600);
            keyClick(Qt.Key_Home);
            compare(view.contentY, 0);
            keyClick(Qt.Key_PageUp);
            compare(view.contentY, 0);
        }

        function test_whatGetsTheFocusComesIntoSight() {
            rows.itemAt(12).forceActiveFocus(Qt.TabFocusReason);
            const y = rows.itemAt(12).mapToItem(view, 0, 0).y;
            verify(y >= 0 && y + 40 <= view.height, y);
            rows.itemAt(0).forceActiveFocus(Qt.TabFocusReason);
            compare(view.contentY, 0);
        }

        function test_wheelScrolls() {
            mouseWheel(view, 100, 100, 0, -240);
            tryVerify(() => view.contentY > 0);
        }

        function test_theEndsDoNotGiveWay() {
            mouseWheel(view, 100, 100, 0, 960);
            wait(0);
            compare(view.contentY, 0);
        }
    }
}
