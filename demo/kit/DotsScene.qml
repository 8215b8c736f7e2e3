// The glass dot from close by, and in all colours.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Rectangle {
    implicitWidth: 1000
    implicitHeight: 470
    color: DarkUI.windowGround

    DarkKicker {
        x: 56
        y: 48
        text: "The dot, radius 44"
    }

    Row {
        x: 78
        y: 127
        spacing: 56

        Repeater {
            model: ["Finished hour", "Current hour", "Socket"]

            Column {
                id: kind
                required property string modelData
                required property int index
                spacing: DarkUI.space36

                GlassDot {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: 88
                    height: 88
                    color: DarkUI.accent
                    filled: kind.index === 0
                    fraction: kind.index === 1 ? 0.3 : -1
                }
                DarkText {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: kind.modelData
                    color: DarkUI.textSecondary
                }
            }
        }
    }

    DarkKicker {
        x: 560
        y: 48
        text: "The wall, three times its size"
    }

    GlassDotWall {
        x: 545
        y: 115
        width: 400
        height: 108
        columns: 8
        rows: 2
        colors: ["#7A78FF", "#7A78FF", "#FF9F0A", "#FF9F0A", "#7A78FF", "#FF375F", "#FF375F",
                 "#7A78FF", "#7A78FF", "#FF9F0A", "#BF5AF2", "#BF5AF2"]
        sliceFraction: 0.3
        sliceColor: DarkUI.accent
    }

    DarkKicker {
        x: 56
        y: 320
        text: "At its real size, 32 by 2"
    }

    DarkCard {
        x: 56
        y: 350
        width: 564
        height: 64

        GlassDotWall {
            y: -DarkUI.space2
            width: 532
            height: 36
            colors: ["#7A78FF", "#64D2FF", "#7A78FF", "#7A78FF", "#7A78FF", "#7A78FF", "#BF5AF2",
                     "#BF5AF2", "#64D2FF", "#FF375F", "#FF375F", "#30D158", "#30D158", "#30D158",
                     "#30D158", "#30D158", "#BF5AF2", "#BF5AF2", "#BF5AF2", "#BF5AF2", "#7A78FF",
                     "#7A78FF", "#7A78FF", "#7A78FF", "#FF9F0A", "#FF9F0A", "#7A78FF", "#FF375F",
                     "#FF375F", "#7A78FF", "#BF5AF2", "#7A78FF", "#BF5AF2", "#FF9F0A", "#FF9F0A",
                     "#FF9F0A", "#FF9F0A", "#FF9F0A", "#7A78FF", "#7A78FF", "#7A78FF", "#FF9F0A",
                     "#BF5AF2", "#BF5AF2", "#7A78FF", "#BF5AF2"]
            sliceFraction: 0.3
            sliceColor: DarkUI.accent
        }
    }

    Grid {
        x: 676
        y: 356
        columns: 5
        spacing: 24

        Repeater {
            model: ["#FF375F", "#FF9F0A", "#7A78FF", "#30D158", "#64D2FF", "#FFD60A", "#BF5AF2",
                    "#FF6482", "#40C8E0", "#ACF35C"]

            GlassDot {
                required property color modelData
                width: 28
                height: 28
                color: modelData
            }
        }
    }
}
