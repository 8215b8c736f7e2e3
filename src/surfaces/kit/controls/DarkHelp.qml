// A tooltip below a control that the pointer rests on, or above it where there is no room below.
// Covers everything else in its window.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: help

    property Item control
    property string text
    // The window's content item; not bound, since a binding would outlive the window.
    property Item area: null
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
        Accessible.ignored: true // the control has it as its description
    }
}
