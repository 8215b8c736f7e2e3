// A heading with its cards.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Column {
    id: section

    required property string title

    spacing: DarkUI.space12

    DarkKicker {
        role: DarkUI.sectionLabel
        x: DarkUI.space4
        topPadding: role.leading + 26
        bottomPadding: -role.leading - DarkUI.space2 // 10 with the spacing
        text: section.title
    }
}
