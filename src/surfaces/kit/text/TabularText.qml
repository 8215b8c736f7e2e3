// A text with digits of equal width, for clocks and columns.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

TabularLine {
    property TypeRole role: DarkUI.body

    color: DarkUI.textPrimary
    font: role.font
    lineHeight: role.line

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text === ""
}
