// The main action of a surface.
import QtQuick
import Vantle.Kit

KitButton {
    kind: KitButton.Primary
}
