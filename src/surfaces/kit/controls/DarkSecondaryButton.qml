// A secondary action.
import QtQuick
import Vantle.Kit

KitButton {
    kind: KitButton.Secondary
}
