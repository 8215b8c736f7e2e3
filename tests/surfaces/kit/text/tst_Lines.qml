import QtQuick
import QtTest
import Vantle.Kit

Rectangle {
    id: scene
    width: 420
    height: 340
    color: "black"

    component Sample: DarkText {
        property int seen: 0
        width: 300
        role: DarkUI.caption
        color: "white"
        wrapMode: Text.Wrap
    }

    Sample {
        id: english
        text: "For work the clock didn’t see. It joins your totals and is marked."
    }
    Sample {
        id: hebrew
        y: 60
        text: "הזמן שנוסף כאן נספר בסך הכול שלך ומסומן כזמן ידני, לא כזמן של השעון"
        horizontalAlignment: Text.AlignRight
    }
    Sample {
        id: centred
        y: 120
        text: english.text
        horizontalAlignment: Text.AlignHCenter
    }
    Sample {
        id: plain
        y: 180
        text: english.text
        balanced: false
    }
    Sample {
        id: roomy
        y: 240
        text: english.text
        firstLineRoom: 80
    }

    Sample {
        id: wrapping
        y: 300
        width: 60
        text: "Hxy"
    }
    Sample {
        id: whole
        x: 60
        y: 300
        width: 60
        text: wrapping.text
        wrapMode: Text.NoWrap
    }

    Component {
        id: column

        Column {
            width: 300

            Sample {
                width: parent.width
                text: english.text
            }
        }
    }

    TestCase {
        name: "Lines"
        when: windowShown

        // The row of the topmost ink in a part of the scene.
        function inkTop(left, right) {
            const picture = grabImage(scene);
            for (let y = 300; y < 340; ++y)
                for (let x = left; x < right; ++x)
                    if (picture.red(x, y) >= 60)
                        return y;
            return -1;
        }
        function test_oneThatMayWrapStandsAsHighAsOthers() {
            verify(inkTop(0, 60) > 0);
            compare(inkTop(0, 60), inkTop(60, 120));
        }

        // From where to where each line of the text is inked.
        function lines(sample) {
            const picture = grabImage(scene);
            const found = [];
            for (let line = 0; line < sample.lineCount; ++line) {
                const top = Math.round(sample.y + line * sample.lineHeight);
                let left = -1;
                let right = -1;
                for (let x = 0; x < 400; ++x) {
                    for (let y = top + 4; y < top + sample.lineHeight - 4; ++y) {
                        if (picture.red(x, y) < 60)
                            continue;
                        if (left < 0)
                            left = x;
                        right = x + 1;
                    }
                }
                found.push({ left, right, width: right - left });
            }
            return found;
        }

        function test_twoLinesAreEven() {
            compare(plain.lineCount, 2);
            const uneven = lines(plain);
            verify(uneven[1].width < uneven[0].width / 2, uneven[1].width);
            for (const sample of [english, hebrew, centred]) {
                compare(sample.lineCount, 2);
                const [first, second] = lines(sample);
                verify(second.width > 0.7 * first.width, first.width + " and " + second.width);
            }
        }

        function test_theyStandWhereTheyStoodInTheWholeWidth() {
            for (const line of lines(english))
                verify(line.left < 4, line.left);
            for (const line of lines(hebrew))
                verify(Math.abs(line.right - 300) < 4, line.right);
            for (const line of lines(centred))
                verify(Math.abs(line.left + line.right - 300) < 6, line.left + line.right);
        }

        function test_itsHeightIsRightFromTheStart() {
            const made = createTemporaryObject(column, scene);
            compare(made.implicitHeight, 2 * english.lineHeight);
        }

        function test_theFirstLineLeavesRoom() {
            const [first] = lines(roomy);
            verify(first.right <= 220, first.right);
        }

        function test_anotherWidthBreaksAgain() {
            english.width = 200;
            const count = english.lineCount;
            verify(count >= 2);
            for (const line of lines(english))
                verify(line.right <= 201, line.right);
            english.width = 300;
            compare(english.lineCount, 2);
        }
    }
}
