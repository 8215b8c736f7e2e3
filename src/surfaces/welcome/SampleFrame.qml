// A picture made of real controls, without input. For screen readers it is one picture.
pragma ComponentBehavior: Bound
import QtQuick

Item {
    id: sample

    default property alias content: inside.data
    property string label

    // Hides the controls from assistive tools. (Disabling them would change their look.)
    function quieten(item: Item): void {
        item.Accessible.ignored = true;
        item.activeFocusOnTab = false;
        for (let i = 0; i < item.children.length; ++i)
            quieten(item.children[i]);
    }

    Accessible.role: Accessible.Graphic
    Accessible.name: label
    Accessible.ignored: label === ""

    Component.onCompleted: quieten(inside)

    Item {
        id: inside
        anchors.fill: parent
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
    }
}
