// What a control does, in a line below it, once the pointer has rested on it. It stands over
// everything else in its window, and above the control where there is no room below.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: help

    property Item control
    property string text
    property Item area: null // that of the window, taken once: a live binding outlasts the window
    readonly property point below: area ? control.mapToItem(area, control.width / 2, control.height)
                                        : Qt.point(0, 0)
    readonly property bool fitsBelow: area && below.y + DarkUI.space6 + height <= area.height

    onControlChanged: {
        area = control.Window.contentItem;
        parent = area;
    }

    z: 1000
    width: Math.ceil(label.implicitWidth) + 2 * DarkUI.space8
    height: label.implicitHeight + 2 * DarkUI.space4
    x: area ? Math.max(DarkUI.space4, Math.min(below.x - width / 2,
                                               area.width - width - DarkUI.space4)) : 0
    y: fitsBelow ? below.y + DarkUI.space6 : below.y - control.height - DarkUI.space6 - height

    Plate {
        anchors.fill: parent
        radius: DarkUI.radiusKeycap
        color: DarkUI.menuGround
        edge: DarkUI.hairline
    }

    DarkText {
        id: label
        anchors.centerIn: parent
        text: help.text
        role: DarkUI.small
        color: DarkUI.textSecondary
        Accessible.ignored: true // the control says it
    }
}
