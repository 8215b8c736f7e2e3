import QtQuick
import QtTest
import Vantle.Kit

Item {
    id: scene
    width: 300
    height: 320

    DarkScrollView {
        id: view
        width: parent.width
        height: 200

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

    Rectangle {
        id: ground
        y: 200
        width: 100
        height: 120
        color: "red"

        DarkScrollView {
            id: framed
            anchors.fill: parent
            atWindowBottom: true
            scrollbarShown: true
            ground: "#0000ff"

            Column {
                Item {
                    width: 100
                    height: 400
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

        function test_fadesEndWithinTheCornersOfTheWindow() {
            framed.contentY = 100;
            const picture = grabImage(ground);
            for (const x of [0, 1, 2, 97, 98, 99])
                compare(picture.red(x, 119), 255, "the corner at " + x);
            compare(picture.red(0, 60), 255);
            // Full along the edge, clear 36 px above; as broad as the window is round there.
            verify(picture.blue(50, 118) > 240, picture.blue(50, 118));
            verify(picture.blue(5, 112) > 180, picture.blue(5, 112));
            verify(picture.blue(50, 85) < 20, picture.blue(50, 85));
            verify(picture.blue(50, 0) > 230, picture.blue(50, 0));
            verify(picture.blue(50, 12) < 20, picture.blue(50, 12));
            framed.contentY = 0;
        }

        function test_scrollbarEndsAboveTheCorner() {
            framed.contentY = 280;
            const picture = grabImage(ground);
            const lit = y => picture.green(93, y) > 10;
            verify(lit(104), "the bar is there");
            for (let y = 107; y < 120; ++y)
                verify(!lit(y), y);
            framed.contentY = 0;
        }

        function test_theEndsDoNotGiveWay() {
            mouseWheel(view, 100, 100, 0, 960);
            wait(0);
            compare(view.contentY, 0);
        }
    }
}
