// A text whose digits all take the same room, for clocks and columns of figures.
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
