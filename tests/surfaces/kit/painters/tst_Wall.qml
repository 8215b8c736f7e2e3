import QtQuick
import QtTest
import Vantle.Kit

Rectangle {
    id: scene
    width: 200
    height: 60
    color: "black"

    GlassDotWall {
        id: wall
        x: 10
        y: 10
        width: 160
        height: 40
        columns: 8
        rows: 2
        colors: ["#FF0000", "#00FF00"]
        sliceFraction: 0.5
        sliceColor: "#0000FF"
    }

    GlassDot {
        id: dot
        x: 176
        y: 20
        width: 16
        height: 16
        color: "#FF0000"
    }

    TestCase {
        name: "Wall"
        when: windowShown

        function at(index, dx) {
            const centre = wall.cellCenter(index);
            return grabImage(scene).pixel(wall.x + centre.x + dx, wall.y + centre.y + 1);
        }

        function test_dotsAreInTheirColoursThenTheSliceThenSockets() {
            verify(at(0, 0).r > 0.8 && at(0, 0).b < 0.6);
            verify(at(1, 0).g > 0.8 && at(1, 0).r < 0.6);
            verify(at(2, 3).b > 0.8);
            verify(at(2, -3).b < 0.3);
            fuzzyCompare(at(3, 0).r, at(3, 0).b, 0.01);
            verify(at(3, 0).r > 0.05 && at(3, 0).r < 0.3);
        }

        function test_fewerCanBeLitThanThereAre() {
            wall.filledCount = 1;
            verify(at(0, 0).r > 0.8);
            verify(at(1, 3).b > 0.8, "the slice comes after the lit ones");
            wall.filledCount = -1;
            verify(at(1, 0).g > 0.8);
        }

        function test_pointerFindsTheHour() {
            compare(wall.cellAt(1, 1), 0);
            compare(wall.cellAt(159, 39), 15);
            compare(wall.cellAt(-1, 1), -1);
        }

        function test_aDotCanBeASocket() {
            const lit = grabImage(scene).pixel(184, 28);
            dot.filled = false;
            const socket = grabImage(scene).pixel(184, 28);
            verify(lit.r > 0.8);
            verify(socket.r < 0.3);
            dot.filled = true;
        }
    }
}
