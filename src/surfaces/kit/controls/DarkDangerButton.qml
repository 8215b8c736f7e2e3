// A button for a destructive action.
import QtQuick
import Vantle.Kit

KitButton {
    kind: KitButton.Danger
}
