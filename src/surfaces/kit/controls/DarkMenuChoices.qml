// The menu of a picker, in its own file so that the picker loads it on first use.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

DarkMenu {
    id: choices

    required property DarkMenuPicker picker

    name: picker.title
    minimumWidth: picker.width

    Repeater {
        model: choices.picker.options

        DarkMenuRow {
            required property string modelData
            required property int index
            text: modelData
            checkable: true
            checked: index === choices.picker.currentIndex
            onTriggered: {
                choices.close();
                choices.picker.activated(index);
            }
        }
    }
}
