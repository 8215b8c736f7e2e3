// The caption below a row. Screen readers get it as the description of title and control: as a text
// it would be read whenever the window opens.
import QtQuick
import Vantle.Kit

DarkText {
    role: DarkUI.caption
    color: DarkUI.textCaption
    wrapMode: Text.Wrap
    Accessible.ignored: true
}
