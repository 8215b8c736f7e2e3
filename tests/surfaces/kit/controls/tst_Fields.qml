import QtQuick
import QtTest
import Vantle.Kit

Rectangle {
    id: scene
    width: 400
    height: 200
    color: DarkUI.windowGround

    Column {
        spacing: 20

        DarkTextField {
            id: field
            width: 300
            name: "Work note"
            placeholder: "What did you work on?"
            limit: 5
            clearable: true
        }
        DarkTextField {
            id: other
            width: 300
            name: "Other"
        }
    }

    SignalSpy {
        id: accepted
        target: field
        signalName: "accepted"
    }
    SignalSpy {
        id: wanted
        target: field
        signalName: "keyboardWanted"
    }
    SignalSpy {
        id: edited
        target: field
        signalName: "edited"
    }

    TestCase {
        name: "Fields"
        when: windowShown

        function init() {
            field.text = "";
            scene.forceActiveFocus();
            accepted.clear();
            wanted.clear();
            edited.clear();
        }

        // The columns in which the picture has a colour of that kind.
        function columns(picture, fits) {
            const found = [];
            for (let x = 0; x < picture.width; ++x) {
                for (let y = 8; y < picture.height - 8; ++y) {
                    if (fits(picture.red(x, y), picture.blue(x, y))) {
                        found.push(x);
                        break;
                    }
                }
            }
            return found;
        }

        function test_caretIsBesideThePlaceholdersFirstLetter() {
            const resting = columns(grabImage(field), (red, blue) => red > 60);
            field.input.forceActiveFocus();
            tryVerify(() => columns(grabImage(field), (red, blue) => blue > red + 40)
                                .some(x => x > 6 && x < 40));
            const caret = columns(grabImage(field), (red, blue) => blue > red + 40)
                .filter(x => x > 6 && x < 290);
            const letter = resting.find(x => x > 6);
            verify(caret.length > 0 && caret[caret.length - 1] < letter,
                   caret + " and the letter at " + letter);
        }

        function type(text) {
            for (const letter of text)
                keyClick(letter);
        }

        function test_isAsHighAsItIsTold() {
            compare(field.height, DarkUI.fieldHeight);
            field.minHeight = 28;
            compare(field.height, 28);
            field.minHeight = DarkUI.fieldHeight;
        }

        function test_clickGivesItTheKeyboard() {
            verify(!field.focused);
            mouseClick(field, 4, 4); // in the well, beside the text
            verify(field.focused);
            compare(wanted.count, 1);
            type("abc");
            compare(field.text, "abc");
        }

        function test_returnAccepts() {
            field.forceActiveFocus();
            type("ab");
            keyClick(Qt.Key_Return);
            compare(accepted.count, 1);
            compare(edited.count, 2);
        }

        function test_oneMoreThanTheLimitIsCutAsItIsTyped() {
            field.forceActiveFocus();
            type("abcdef");
            compare(field.text, "abcde");
            compare(field.input.cursorPosition, 5);
        }

        function test_charactersAreThoseThatThePersonSees() {
            field.text = "👨‍👩‍👧‍👦👨‍👩‍👧‍👦👨‍👩‍👧‍👦👨‍👩‍👧‍👦👨‍👩‍👧‍👦👨‍👩‍👧‍👦";
            compare(KitText.count(field.text), 5);
        }

        function test_whatIsPutIntoTheMiddlePushesTheEndOut() {
            field.text = "abcde";
            field.forceActiveFocus();
            field.input.cursorPosition = 2;
            type("x");
            compare(field.text, "abxcd");
            compare(field.input.cursorPosition, 3);
        }

        function test_theButtonEmptiesIt() {
            field.text = "abc";
            mouseClick(field, field.width - 18, field.height / 2);
            compare(field.text, "");
            verify(field.focused);
            compare(edited.count, 1);
        }

        function test_tabLeadsThroughTheFields() {
            field.forceActiveFocus();
            keyClick(Qt.Key_Tab);
            verify(other.focused);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(field.focused);
        }

        function test_escapeIsLeftToTheSurface() {
            field.forceActiveFocus();
            keyClick(Qt.Key_Escape);
            verify(field.focused);
            compare(accepted.count, 0);
        }
    }
}
