// The label above a form field.
import QtQuick
import Vantle.Kit

DarkText {
    role: DarkUI.captionMedium
    color: DarkUI.textSecondary
}
