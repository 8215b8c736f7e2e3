// A text in a role of the type scale; screen readers read it as shown.
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
    // A fixed line height would put all leading below the letters.
    topPadding: role.leading
    bottomPadding: -role.leading
    // Left-aligned in every script for the program's texts and names in them; a text of the user,
    // such as a note, overrides it.
    horizontalAlignment: Text.AlignLeft
    textFormat: Text.PlainText
    // Native rendering is crisp for small text on standard screens; elsewhere whole-pixel glyphs
    // would jump.
    renderType: role.size <= 15 && Screen.devicePixelRatio === 1 ? Text.NativeRendering
                                                                 : Text.QtRendering

    Accessible.role: Accessible.StaticText
    Accessible.name: KitText.spoken(text)
    Accessible.ignored: text === ""
}
