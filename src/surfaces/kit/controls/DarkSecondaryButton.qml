// An action beside the main one.
import QtQuick
import Vantle.Kit

KitButton {
    kind: KitButton.Secondary
}
