// The skill that the time goes to: as high as a field, with the skill's colour in front.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

DarkMenuPicker {
    id: picker

    required property color skillColor

    implicitHeight: DarkUI.formFieldHeight
    textLeft: DarkUI.fieldPadding + DarkUI.chipDot + DarkUI.space10
    role: DarkUI.body

    FlatDot {
        x: DarkUI.fieldPadding
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.chipDot
        height: DarkUI.chipDot
        color: picker.skillColor
    }
}
