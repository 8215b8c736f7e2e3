// The background of a chip: quiet, or tinted when chosen.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: ground

    property color selectedTint: DarkUI.clear // the fill when chosen
    property bool hovering: false
    property bool pressed: false
    readonly property bool selected: selectedTint.a > 0

    radius: height / 2
    color: selected ? Tint.alpha(selectedTint, pressed ? DarkUI.tintFillPressedOpacity
                                             : hovering ? DarkUI.tintFillHoverOpacity
                                             : DarkUI.tintFillOpacity)
         : pressed ? DarkUI.fillPressed : hovering ? DarkUI.fillHover : DarkUI.fill
    edge: selected ? selectedTint : DarkUI.hairline

    Behavior on color {
        ColorAnimation {
            duration: ground.pressed ? DarkUI.pressTime : DarkUI.hoverTime
            easing.type: Easing.OutCubic
        }
    }
}
