// Three short facts in a line, evenly spaced; in several lines if they do not fit.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: row

    property list<string> facts

    readonly property real between: (width - first.implicitWidth - second.implicitWidth
                                     - third.implicitWidth) / 2
    readonly property real leastBetween: DarkUI.space12

    implicitHeight: lines.height + DarkUI.space12

    function fact(index: int): string {
        return index < facts.length ? facts[index] : "";
    }

    component Fact: DarkText {
        role: DarkUI.panelTitle
    }

    Flow {
        id: lines
        width: row.width
        spacing: row.between < row.leastBetween ? row.leastBetween : Math.floor(row.between)

        Fact {
            id: first
            text: row.fact(0)
        }

        Fact {
            id: second
            text: row.fact(1)
        }

        Fact {
            id: third
            text: row.fact(2)
        }
    }
}
