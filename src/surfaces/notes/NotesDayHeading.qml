// The heading of a day.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: heading

    required property string section

    width: ListView.view ? ListView.view.width : 0
    implicitHeight: DarkUI.space14 + label.height + DarkUI.space6

    DarkText {
        id: label
        x: DarkUI.space28
        y: DarkUI.space14
        text: heading.section
        role: DarkUI.captionStrong
        color: DarkUI.textSecondary
        // The list creates it after the row below it and screen readers would read it in that
        // order. The row names the day instead.
        Accessible.ignored: true
    }
}
