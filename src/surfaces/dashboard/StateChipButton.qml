// The session's state in the skill's colour; a press stops it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

KitPressable {
    id: chip

    required property DashboardView model
    readonly property bool offersStop: hovered || ringed

    property real room: 10000 // available px; a long name is elided
    readonly property real aside: status.x + DarkUI.buttonPadding

    // The width of the wider text: a chip that shrank under the pointer would leave it.
    implicitWidth: aside + Math.ceil(Math.max(status.implicitWidth + time.implicitWidth,
                                              stop.implicitWidth))
    width: Math.min(implicitWidth, room)
    implicitHeight: DarkUI.buttonHeight
    name: model.chipLabel
    help: qsTr("Stop the session")
    onClicked: model.toggle()

    Plate {
        anchors.fill: parent
        radius: DarkUI.radiusButton
        color: Tint.alpha(chip.model.chipColor, chip.pressed ? DarkUI.tintFillPressedOpacity
                                              : chip.hovered ? DarkUI.tintFillHoverOpacity
                                                             : DarkUI.tintFillOpacity)
        edge: Tint.alpha(chip.model.chipColor, 0.70)
    }

    FlatDot {
        x: DarkUI.space12
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.chipDotSize
        height: DarkUI.chipDotSize
        color: chip.model.chipColor
        opacity: chip.model.isPaused ? 0.4 : 1
    }

    component Words: DarkText {
        x: DarkUI.space12 + DarkUI.chipDotSize + DarkUI.space8
        anchors.verticalCenter: parent.verticalCenter
        role: DarkUI.bodyMedium
        Accessible.ignored: true
    }

    Words {
        id: status
        visible: !chip.offersStop
        width: Math.min(implicitWidth, chip.width - chip.aside - time.implicitWidth)
        text: chip.model.chipState
        elide: Text.ElideRight
    }

    Words {
        id: time
        x: status.x + status.width
        visible: !chip.offersStop
        text: " · " + chip.model.elapsed
    }

    Words {
        id: stop
        visible: chip.offersStop
        text: chip.model.chipHoverText
    }

    FocusRing {
        shown: chip.ringed
        controlRadius: DarkUI.radiusButton
    }
}
