// A quiet action, set flush with the text around it.
import QtQuick
import Vantle.Kit

KitButton {
    kind: KitButton.Text
}
