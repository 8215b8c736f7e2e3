// The facts of a note: skill, duration, and whether it was logged by hand.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Row {
    id: meta

    required property string skillName
    required property color skillColor
    required property string durationText
    required property bool isManual

    spacing: DarkUI.space8

    component Word: DarkText {
        role: DarkUI.caption
        color: DarkUI.textSecondary
        Accessible.ignored: true
    }

    FlatDot {
        id: dot
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.chipDotSize
        height: DarkUI.chipDotSize
        color: meta.skillColor
    }

    Word {
        // The width left beside texts that are never elided.
        readonly property real others: dot.width + divider.width + duration.width
                                       + 3 * meta.spacing
                                       + (meta.isManual ? end.width + meta.spacing : 0)
        width: Math.min(implicitWidth, meta.width - others)
        text: meta.skillName
        elide: Text.ElideRight
    }

    Word {
        id: divider
        text: "·"
        color: DarkUI.textDisabled
    }

    Word {
        id: duration
        text: meta.durationText
    }

    Row {
        id: end
        visible: meta.isManual
        spacing: meta.spacing

        Word {
            text: "·"
            color: DarkUI.textDisabled
        }
        Word {
            text: qsTr("Manual")
            color: DarkUI.textTertiary
        }
    }
}
