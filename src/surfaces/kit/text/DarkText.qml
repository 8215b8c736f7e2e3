// A text in a role of the type scale, read out as it stands.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Text {
    id: label

    property TypeRole role: DarkUI.body

    color: DarkUI.textPrimary
    font: role.font
    lineHeightMode: Text.FixedHeight
    lineHeight: role.line
    // A fixed line would leave all of the space below the letters.
    topPadding: role.leading
    bottomPadding: -role.leading
    // The program's own texts, and names among them, stand at the left in every script; what
    // follows its own, such as a note, resets this.
    horizontalAlignment: Text.AlignLeft
    textFormat: Text.PlainText
    // Crisp stems for small text on plain screens; elsewhere whole-pixel glyphs would jump.
    renderType: role.size <= 15 && Screen.devicePixelRatio === 1 ? Text.NativeRendering
                                                                 : Text.QtRendering

    Accessible.role: Accessible.StaticText
    Accessible.name: KitText.spoken(text)
    Accessible.ignored: text === ""
}
