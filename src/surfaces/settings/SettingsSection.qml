// A heading with its cards.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Column {
    id: section

    required property string title
    readonly property real aboveTitle: 26

    spacing: DarkUI.space12

    DarkKicker {
        role: DarkUI.sectionLabel
        x: DarkUI.space4
        topPadding: role.leading + section.aboveTitle
        bottomPadding: -role.leading - DarkUI.space2 // 10 px with the spacing
        text: section.title
    }
}
