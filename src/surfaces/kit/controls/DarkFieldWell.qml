// The frame around a text field; its edge shows focus and errors.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Plate {
    id: well

    property bool focused: false
    property bool wrong: false
    property real minHeight: DarkUI.fieldHeight
    property color accent: DarkUI.accent
    default property alias content: inside.data

    implicitHeight: minHeight
    radius: DarkUI.radiusButton
    color: focused ? DarkUI.fieldFillFocused : DarkUI.fieldFill
    edge: wrong ? DarkUI.danger : focused ? accent : DarkUI.hairline
    edgeWidth: wrong || focused ? DarkUI.fieldEdgeWidth : DarkUI.hairlineWidth

    Behavior on color {
        ColorAnimation {
            duration: DarkUI.hoverTime
            easing.type: Easing.OutCubic
        }
    }

    Item {
        id: inside
        anchors.fill: parent
    }
}
