// A word below a sample.
import QtQuick
import Vantle.Kit

DarkText {
    role: DarkUI.small
    color: DarkUI.textTertiary
}
