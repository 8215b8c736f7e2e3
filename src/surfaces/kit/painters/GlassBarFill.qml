// The lit part of a bar; a child of GlassBarTrack, sized by `fraction`.
import QtQuick
import Vantle.Kit

Plate {
    property real cornerRadius: DarkUI.radiusBar
    property real fraction: 1 // of the track, 0 to 1

    // At least a round dot from the first second on.
    width: !parent || fraction <= 0 ? 0
           : Math.max(parent.height, parent.width * Math.min(fraction, 1))
    height: parent ? parent.height : 0
    radius: Math.min(cornerRadius, height / 2)
}
