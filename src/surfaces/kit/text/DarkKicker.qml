// A small wide heading, as it is written.
import QtQuick
import Vantle.Kit

DarkText {
    role: DarkUI.kicker
    color: DarkUI.textTertiary
    Accessible.role: Accessible.Heading
}
