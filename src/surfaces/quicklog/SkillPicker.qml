// The skill picker, as high as a field, with the skill's colour.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

DarkMenuPicker {
    id: picker

    required property color skillColor

    implicitHeight: DarkUI.formFieldHeight
    textLeft: DarkUI.fieldPadding + DarkUI.chipDotSize + DarkUI.space10
    chevronRight: DarkUI.fieldPadding
    role: DarkUI.body

    FlatDot {
        x: DarkUI.fieldPadding
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.chipDotSize
        height: DarkUI.chipDotSize
        color: picker.skillColor
    }
}
