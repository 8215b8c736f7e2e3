// A spring of unit mass: how stiff it is and how much it is damped.
import QtQuick

QtObject {
    required property real stiffness
    required property real damping
}
