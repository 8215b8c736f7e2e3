// The mode chips, and the chip that adds one.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Skills

Item {
    id: chips

    required property SkillListModel modes
    required property bool adding // whether the editor is open for a new mode
    signal chosen(string id)
    signal editWanted(string id)
    signal deleteWanted(string id)
    signal addWanted

    implicitHeight: flow.implicitHeight

    // Focuses the chip for which the editor was opened, or the one that adds a mode.
    function takeKeyboard(id: string): void {
        const all = group.stops();
        let place = all.length - 1;
        for (let i = 0; i < all.length; ++i) {
            if (all[i].skillId === id)
                place = i;
        }
        all[place].focusByKeyboard();
        group.current = place;
        group.refresh();
    }
    function settle(): void {
        flow.forceLayout();
    }

    component SkillChip: DarkChip {
        id: chip

        required property string skillId
        required property int hexRGB
        required property bool selected
        required property bool deletable

        large: true
        width: Math.min(implicitWidth, chips.width)
        dotColor: Tint.fromHex(hexRGB)
        selectedTint: selected ? dotColor : DarkUI.clear
        checked: selected
        choosable: true
        Accessible.description: selected ? qsTr("Selected") : qsTr("Not selected")
        onClicked: chips.chosen(skillId)
        onContextMenuRequested: menu.openFor(chip)
    }

    ArrowGroup {
        id: group
        anchors.fill: parent
        list: flow
        Accessible.name: qsTr("Modes")

        Flow {
            id: flow
            width: chips.width
            spacing: DarkUI.chipGap

            Repeater {
                model: chips.modes
                onItemAdded: group.refresh()
                onItemRemoved: group.refresh()

                SkillChip {
                    required property string name
                    text: name
                }
            }

            NewModeChip {
                active: chips.adding
                onClicked: chips.addWanted()
            }
        }
    }

    DarkMenu {
        id: menu

        property SkillChip chip: null

        function openFor(target: SkillChip): void {
            chip = target;
            openAt(target, 0);
        }

        name: chip ? chip.text : ""

        DarkMenuRow {
            text: qsTr("Change color…")
            onTriggered: {
                menu.close();
                chips.editWanted(menu.chip.skillId);
            }
        }
        DarkMenuRow {
            visible: menu.chip !== null && menu.chip.deletable
            text: menu.chip ? qsTr("Delete %1").arg(KitText.isolated(menu.chip.text)) : ""
            danger: true
            onTriggered: {
                menu.close();
                chips.deleteWanted(menu.chip.skillId);
            }
        }
    }
}
