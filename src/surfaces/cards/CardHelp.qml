// The description of a card's control under the pointer or with the focus, in the free space of the
// card.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

DarkText {
    property string help // empty for none
    property string kept // the last text, while it fades out

    onHelpChanged: if (help !== "") kept = help
    text: kept
    role: DarkUI.small
    color: DarkUI.textTertiary
    wrapMode: Text.Wrap
    maximumLineCount: 2
    elide: Text.ElideRight
    opacity: help === "" ? 0 : 1
    Accessible.ignored: true // each control has its own description

    Behavior on opacity {
        NumberAnimation {
            duration: DarkUI.hoverTime
            easing.type: Easing.OutCubic
        }
    }
}
