// The entrance of a page's part: rises and fades in, in sequence. The one large part drops onto the
// page instead.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: child

    property int order: 0
    property bool slam: false
    property bool animated: false
    default property alias content: inside.data

    implicitWidth: inside.childrenRect.width
    implicitHeight: inside.childrenRect.height

    EntranceSpring {
        id: entrance
        spring: child.slam ? DarkUI.springSlam : DarkUI.springCascade
        animated: child.animated
        delay: DarkUI.cascadeDelay + child.order * DarkUI.cascadeStep
    }

    Item {
        id: inside
        y: child.slam ? 0 : Math.round((1 - entrance.way) * DarkUI.cascadeRise)
        width: child.width
        height: child.height
        opacity: Math.min(entrance.way, 1)
        scale: child.slam ? DarkUI.slamFrom + (1 - DarkUI.slamFrom) * entrance.way : 1
        transformOrigin: Item.Left
    }
}
