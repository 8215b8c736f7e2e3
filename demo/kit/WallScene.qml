// A wall of four thousand hours in one item.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Rectangle {
    id: scene

    readonly property int hours: 3730
    readonly property list<color> palette: ["#7A78FF", "#7A78FF", "#BF5AF2", "#FF375F", "#FF9F0A",
                                            "#64D2FF", "#30D158"]

    implicitWidth: 1000
    implicitHeight: 420
    color: DarkUI.windowGround

    function colorOf(hour: int): color {
        return palette[Math.floor(hour / 9 + hour * hour / 57) % palette.length];
    }

    GlassDotWall {
        id: wall
        x: 20
        y: 10
        width: 960
        height: 400
        columns: 100
        rows: 40
        sliceFraction: 0.6
        sliceColor: DarkUI.accent
        Component.onCompleted: {
            const colors = [];
            for (let i = 0; i < scene.hours; ++i)
                colors.push(scene.colorOf(i));
            wall.colors = colors;
        }
    }
}
