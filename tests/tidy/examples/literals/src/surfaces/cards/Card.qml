// A card of 12 px.
import QtQuick

Rectangle {
    readonly property real nameWidth: 90 // of the longest
    readonly property int fadeTime: 250
    readonly property string sign: "12"
    width: 2 * nameWidth + 0.5
    height: space12 - 1
    order: 17
    radius: 12
    color: "#FF0000"
    border.color: "transparent"
    opacity: hovered ? 0.85 : 1
    gradient: Qt.rgba(1, 1, 1, 0)
    Text {
        color: "white"
    }
}
