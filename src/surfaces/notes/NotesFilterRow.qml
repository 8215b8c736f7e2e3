// A chip for all notes and one per skill, in one line that scrolls sideways.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Notes

Item {
    id: row

    required property LogView model
    readonly property real fadeAtEnd: 104

    readonly property real ringRoom: DarkUI.focusWidth + DarkUI.focusGap

    implicitHeight: DarkUI.chipHeight

    // Scrolls to the focused chip.
    function bringIntoSight(chip: Item): void {
        const left = chip.mapToItem(chips, 0, 0).x;
        const room = area.width - DarkUI.edgeFadeLength;
        if (left < area.contentX)
            area.contentX = left;
        else if (left + chip.width > area.contentX + room)
            area.contentX = Math.min(left + chip.width - room, area.contentWidth - area.width);
    }

    Flickable {
        id: area
        anchors.fill: parent
        // Room for the focus ring, which would be clipped.
        anchors.margins: -row.ringRoom
        contentWidth: chips.width + 2 * chips.x
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentWidth > width
        clip: true

        ArrowGroup {
            x: row.ringRoom
            y: x
            width: chips.width
            height: chips.height
            list: chips
            Accessible.name: qsTr("Filter by skill")

            Row {
                id: chips
                spacing: DarkUI.chipGap

                DarkChip {
                    text: qsTr("All")
                    choosable: true
                    selectedTint: row.model.showsAll ? DarkUI.textTertiary : DarkUI.clear
                    onClicked: row.model.showAll()
                    onActiveFocusChanged: if (activeFocus) row.bringIntoSight(this)
                }

                Repeater {
                    model: row.model.filters

                    DarkChip {
                        id: chip
                        required property string skillId
                        required property color skillColor
                        required property bool selected

                        required name
                        text: name
                        choosable: true
                        dotColor: skillColor
                        selectedTint: selected ? skillColor : DarkUI.clear
                        onClicked: row.model.showSkill(skillId)
                        onActiveFocusChanged: if (activeFocus) row.bringIntoSight(chip)
                    }
                }
            }
        }
    }

    EdgeFade {
        anchors.right: area.right
        width: row.fadeAtEnd
        height: parent.height
        edge: Qt.RightEdge
        visible: !area.atXEnd
    }

    EdgeFade {
        anchors.left: area.left
        width: DarkUI.edgeFadeLength
        height: parent.height
        edge: Qt.LeftEdge
        visible: !area.atXBeginning
    }
}
