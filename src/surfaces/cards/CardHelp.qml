// What a control of a card does, in the card's own free room, while the pointer or the keyboard is
// on it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

DarkText {
    property string help // of the control that is pointed at; empty for none
    property string kept // the last one, while it fades away

    onHelpChanged: if (help !== "") kept = help
    text: kept
    role: DarkUI.small
    color: DarkUI.textTertiary
    wrapMode: Text.Wrap
    maximumLineCount: 2
    elide: Text.ElideRight
    opacity: help === "" ? 0 : 1
    Accessible.ignored: true // each control describes itself

    Behavior on opacity {
        NumberAnimation {
            duration: DarkUI.hoverTime
            easing.type: Easing.OutCubic
        }
    }
}
