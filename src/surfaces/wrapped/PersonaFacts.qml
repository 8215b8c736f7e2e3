// Three short facts in a line, evenly spaced.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: row

    property list<string> facts

    implicitHeight: DarkUI.panelTitle.line + DarkUI.space12

    function fact(index: int): string {
        return index < facts.length ? facts[index] : "";
    }

    component Fact: DarkText {
        role: DarkUI.panelTitle
    }

    Fact {
        id: first
        text: row.fact(0)
    }

    Fact {
        x: Math.round((first.width + last.x - width) / 2)
        text: row.fact(1)
    }

    Fact {
        id: last
        anchors.right: parent.right
        text: row.fact(2)
    }
}
