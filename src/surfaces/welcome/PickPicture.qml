// The empty wall with its first brick.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Item {
    id: picture

    required property WelcomeView model
    // Courses from the bottom up: offset of the first brick, then lengths.
    readonly property list<string> courses: [
        "-28 96 96 80 74 96 82", "-64 96 88 96 80 88 96 88", "-22 96 88 74 96 88 80",
        "-70 96 96 88 74 96 88 80", "-28 96 96 80 74 96 82", "-64 96 88 96 80 88 96 88",
        "-22 96 88 74 96 88 80"
    ]
    readonly property real lowest: 172 // upper edge of the lowest course

    implicitHeight: WelcomeTokens.pickStageHeight

    // Returns where the next brick starts, after `count` bricks of a course.
    function begin(course: string, count: int): real {
        const numbers = course.split(" ").map(Number);
        return numbers.slice(1, count + 1).reduce((x, w) => x + w + WelcomeTokens.brickGap,
                                                  numbers[0]);
    }

    Item {
        anchors.fill: parent
        clip: true

        Repeater {
            model: picture.courses

            Repeater {
                id: course

                required property string modelData
                required property int index
                readonly property int row: index
                readonly property string plan: modelData

                model: plan.split(" ").length - 1

                Plate {
                    required property int index
                    readonly property real share: course.row / (picture.courses.length - 1)

                    x: picture.begin(course.plan, index)
                    y: picture.lowest - course.row * WelcomeTokens.brickPitch
                    visible: course.row > 0 || index !== 2
                    width: Number(course.plan.split(" ")[index + 1])
                    height: WelcomeTokens.brickHeight
                    radius: DarkUI.radiusSmall
                    color: Qt.rgba(1, 1, 1, WelcomeTokens.brickPlainest
                                   + (WelcomeTokens.brickFaintest - WelcomeTokens.brickPlainest)
                                   * share)
                }
            }
        }
    }

    SoftGlow {
        anchors.fill: first
    }

    Plate {
        id: first
        x: picture.begin(picture.courses[0], 2)
        y: picture.lowest
        width: 80
        height: WelcomeTokens.brickHeight
        radius: DarkUI.radiusSmall
        color: DarkUI.accent

        Plate {
            x: WelcomeTokens.shineInset
            y: WelcomeTokens.shineInset
            width: parent.width - 2 * x
            height: WelcomeTokens.shineHeight
            radius: height / 2
            color: WelcomeTokens.brickShine
        }
    }
}
