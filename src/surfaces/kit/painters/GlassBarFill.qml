// The lit part of a bar; stands in a GlassBarTrack, by its fraction of it.
import QtQuick
import Vantle.Kit

Plate {
    property real cornerRadius: DarkUI.radiusBar
    property real fraction: 1 // of the trough, 0 to 1

    // Something is never nothing: from the first second on a bar is at least a round dot.
    width: !parent || fraction <= 0 ? 0
           : Math.max(parent.height, parent.width * Math.min(fraction, 1))
    height: parent ? parent.height : 0
    radius: Math.min(cornerRadius, height / 2)
}
