// What a note belongs to: the skill, how long, and whether it was logged by hand.
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
        color: DarkUI.t2
        Accessible.ignored: true
    }

    FlatDot {
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.chipDot
        height: DarkUI.chipDot
        color: meta.skillColor
    }

    Word {
        text: meta.skillName
    }

    Word {
        text: "·"
        color: DarkUI.t4
    }

    Word {
        text: meta.durationText
    }

    Word {
        visible: meta.isManual
        text: "·"
        color: DarkUI.t4
    }

    Word {
        visible: meta.isManual
        text: qsTr("Manual")
        color: DarkUI.t3
    }
}
