// A small wide heading, as it is written.
import QtQuick
import Vantle.Kit

DarkText {
    role: DarkUI.kicker
    color: DarkUI.t3
    Accessible.role: Accessible.Heading
}
