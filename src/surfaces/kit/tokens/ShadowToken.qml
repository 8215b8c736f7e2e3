// The shadow of a level: a wide layer, and below the higher levels a tight one. Offsets point down.
import QtQuick

QtObject {
    required property real offset // px
    required property real blur // px
    required property real strength // opacity of black
    property real tightOffset: 0
    property real tightBlur: 0
    property real tightStrength: 0
}
