// The entrance of dots and discs, in sequence.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: child

    property int order: 0
    property int baseDelay: 0 // ms
    property real fromScale: DarkUI.popFrom
    property bool animated: false
    default property alias content: inside.data

    implicitWidth: inside.childrenRect.width
    implicitHeight: inside.childrenRect.height

    EntranceSpring {
        id: entrance
        spring: DarkUI.springPop
        animated: child.animated
        delay: child.baseDelay + child.order * DarkUI.popStep
    }

    Item {
        id: inside
        width: child.width
        height: child.height
        opacity: Math.min(entrance.way, 1)
        scale: child.fromScale + (1 - child.fromScale) * entrance.way
    }
}
