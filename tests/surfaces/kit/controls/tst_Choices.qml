import QtQuick
import QtTest
import Vantle.Kit

Item {
    id: scene
    width: 500
    height: 300

    Column {
        spacing: 20

        SegmentedPicker {
            id: segments
            width: 300
            options: ["Week", "Month", "Year"]
            onActivated: index => currentIndex = index
        }
        SegmentedPicker {
            id: lateSegments
            width: 300
            options: ["Week", "Month", "Year"]
            currentIndex: segments.options.length - 1 // known once the segments are made
        }
        SwatchRow {
            id: swatches
            width: 300
            colors: ["#FF375F", "#FF9F0A", "#7A78FF"]
            names: ["Red", "Orange", "Violet"]
            currentIndex: 0
            onActivated: index => currentIndex = index
        }
        DarkSlider {
            id: slider
            width: 218
            minimumValue: 1
            maximumValue: 11
            stepSize: 1
            value: 3
            onMoved: value => slider.value = value
        }
        ArrowGroup {
            id: chips
            width: 300
            height: 24
            list: chipRow

            Row {
                id: chipRow
                spacing: DarkUI.chipGap

                DarkChip {
                    id: build
                    text: "Build"
                    dotColor: DarkUI.accent
                }
                DarkChip {
                    id: design
                    text: "Design"
                    dotColor: "#BF5AF2"
                }
            }
        }
        DarkSecondaryButton {
            id: last
            text: "Last"
        }
    }

    SignalSpy {
        id: menus
        target: design
        signalName: "contextMenuRequested"
    }

    TestCase {
        name: "Choices"
        when: windowShown

        function init() {
            segments.currentIndex = 0;
            swatches.currentIndex = 0;
            slider.value = 3;
            scene.forceActiveFocus();
        }

        function test_segmentByPointerAndArrows() {
            mouseClick(segments, 150, 10);
            compare(segments.currentIndex, 1);
            segments.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Right);
            compare(segments.currentIndex, 2);
            keyClick(Qt.Key_Right);
            compare(segments.currentIndex, 2);
            keyClick(Qt.Key_Home);
            compare(segments.currentIndex, 0);
        }

        function test_theChosenSegmentHasTheFocusFromTheStart() {
            lateSegments.forceActiveFocus(Qt.TabFocusReason);
            compare((lateSegments.Window.activeFocusItem as KitPressable).name, "Year");
        }

        function test_swatchByPointerAndArrows() {
            mouseClick(swatches, 150, 12);
            compare(swatches.currentIndex, 1);
            swatches.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Left);
            compare(swatches.currentIndex, 0);
        }

        function test_groupIsOneStopOfTheTabKey() {
            build.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Right);
            verify(design.activeFocus);
            verify(design.ringed);
            keyClick(Qt.Key_Tab);
            verify(last.activeFocus);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(design.activeFocus, "back to where one was");
        }

        function test_sliderByKeysStaysInItsRange() {
            slider.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Right);
            compare(slider.value, 4);
            keyClick(Qt.Key_Home);
            compare(slider.value, 1);
            keyClick(Qt.Key_Left);
            compare(slider.value, 1);
            keyClick(Qt.Key_End);
            compare(slider.value, 11);
        }

        function test_sliderByPointerGoesInSteps() {
            mousePress(slider, 109, 12); // the middle of the way
            compare(slider.value, 6);
            mouseMove(slider, 131, 12);
            compare(slider.value, 7);
            mouseMove(slider, 600, 12);
            compare(slider.value, 11);
            mouseRelease(slider, 600, 12);
        }

        function test_rightClickAsksForTheMenuOfAChip() {
            menus.clear();
            mouseClick(design, 5, 5, Qt.RightButton);
            compare(menus.count, 1);
        }

        function test_chipsHaveTheirMeasures() {
            compare(design.height, 24);
            const label = design.implicitWidth - 23 - 13;
            verify(label > 25 && label < 50, label);
        }
    }
}
