// A text in a role of the type scale; screen readers read it as shown.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Text {
    id: label

    property TypeRole role: DarkUI.body
    property bool balanced: true // even lines, and no last line of a single word
    property real firstLineRoom: 0 // px kept free at the end of the first line
    // A text whose width follows from its own implicitWidth must not be balanced: its shorter lines
    // would be its next width.
    // Without a width each letter would be a line, and what is as high as its texts far too high.
    readonly property bool lays: wrapMode !== Text.NoWrap && width > 0
                                 && (balanced || firstLineRoom > 0)
    property bool breaks: false // lineLaidOut is connected
    property real breadth: 0 // px, the width that lines break at

    function balancedWithin(width: real): real {
        const words = textFormat === Text.StyledText ? KitText.unstyled(text) : text;
        return KitText.breadth(words, font, width, firstLineRoom, renderType === Text.QtRendering,
                               maximumLineCount);
    }
    function setLine(line: var): void {
        const room = line.number === 0 ? firstLineRoom : 0;
        const width = line.width;
        if (line.number === 0)
            breadth = balanced ? balancedWithin(width) : width;
        line.width = Math.min(breadth, width - room);
        // A line that is laid out here starts lower than others, by what the type's own height is
        // more than the fixed one.
        line.y = line.number * lineHeight;
        // Aligns within the full width.
        const left = width - room - line.width;
        if (effectiveHorizontalAlignment === Text.AlignRight)
            line.x += left;
        else if (effectiveHorizontalAlignment === Text.AlignHCenter)
            line.x += left / 2;
    }

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

    onLaysChanged: {
        if (breaks || !lays)
            return;
        breaks = true;
        lineLaidOut.connect(setLine);
        forceLayout();
    }
    onFirstLineRoomChanged: forceLayout()

    Accessible.role: Accessible.StaticText
    Accessible.name: KitText.spoken(text)
    Accessible.ignored: text === ""
}
