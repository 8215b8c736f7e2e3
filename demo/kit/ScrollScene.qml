// A list that scrolls, and an open menu.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Rectangle {
    function openMenu(): void {
        picker.open();
    }

    implicitWidth: 640
    implicitHeight: 360
    color: DarkUI.windowGround

    DarkScrollView {
        x: DarkUI.space24
        y: DarkUI.space24
        width: 300
        height: 312
        scrollbarShown: true

        Column {
            width: parent.width

            Repeater {
                model: 20

                Item {
                    id: row
                    required property int index
                    width: parent.width
                    height: DarkUI.navRowHeight

                    DarkText {
                        anchors.verticalCenter: parent.verticalCenter
                        text: "Row " + (row.index + 1)
                    }
                    DarkDivider {
                        anchors.bottom: parent.bottom
                        width: parent.width - DarkUI.space20
                    }
                }
            }
        }
        onContentHeightChanged: scrollTo(120)
    }

    DarkMenuPicker {
        id: picker
        x: 370
        y: DarkUI.space24
        title: "Away after"
        options: ["1 minute", "3 minutes", "5 minutes", "10 minutes"]
        currentIndex: 1
    }
}
