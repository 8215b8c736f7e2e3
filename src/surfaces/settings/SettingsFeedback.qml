// The result of an action, below its button.
import QtQuick
import Vantle.Kit

DarkText {
    id: feedback

    property bool failed: false

    visible: text !== ""
    role: failed ? DarkUI.caption : DarkUI.captionMedium // failures are long
    color: failed ? DarkUI.dangerText : DarkUI.good
    wrapMode: Text.Wrap
    Accessible.role: Accessible.AlertMessage

    Announcer {
        text: feedback.text
    }
}
