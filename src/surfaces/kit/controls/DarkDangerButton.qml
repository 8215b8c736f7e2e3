// An action that destroys.
import QtQuick
import Vantle.Kit

KitButton {
    kind: KitButton.Danger
}
