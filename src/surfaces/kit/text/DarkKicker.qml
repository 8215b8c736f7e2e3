// A small wide heading.
import QtQuick
import Vantle.Kit

DarkText {
    role: DarkUI.kicker
    color: DarkUI.textTertiary
    Accessible.role: Accessible.Heading
}
