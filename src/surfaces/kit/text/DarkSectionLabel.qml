// A heading over a group, in small capitals.
import QtQuick
import Vantle.Kit

DarkKicker {
    role: DarkUI.sectionLabel
}
