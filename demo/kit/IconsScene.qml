// All icons of the kit.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.DemoKit

Rectangle {
    implicitWidth: 1000
    implicitHeight: 350
    color: DarkUI.windowGround

    DarkKicker {
        x: 48
        y: 44
        text: "Interface icons, 16 grid"
    }

    Grid {
        x: 48
        y: 82
        columns: 8

        Repeater {
            model: ["close", "minimise", "check", "check-circle", "clear-circle", "lock",
                    "warning", "sparkles", "copy", "pencil", "chevron-left", "chevron-right",
                    "chevron-down", "plus", "minus", "search", "play", "stop", "pause", "trophy",
                    "bolt", "calendar", "timer", "hammer"]

            Item {
                id: cell
                required property string modelData
                width: 113
                height: 81

                KitIcon {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: 2 * DarkUI.iconSize
                    height: 2 * DarkUI.iconSize
                    name: cell.modelData
                    color: DarkUI.textPrimary
                }
                Caption {
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: 42
                    text: cell.modelData
                }
            }
        }
    }
}
