// The small explanatory text under a row.
import QtQuick
import Vantle.Kit

DarkText {
    role: DarkUI.caption
    color: DarkUI.textCaption
    wrapMode: Text.Wrap
}
