// The small explanatory text under a row. Screen readers are told it as the description of the
// row's title and control: as a text of its own it would be read out whenever the window opens.
import QtQuick
import Vantle.Kit

DarkText {
    role: DarkUI.caption
    color: DarkUI.textCaption
    wrapMode: Text.Wrap
    Accessible.ignored: true
}
