// The label over a field of the form.
import QtQuick
import Vantle.Kit

DarkText {
    role: DarkUI.captionMedium
    color: DarkUI.textSecondary
}
