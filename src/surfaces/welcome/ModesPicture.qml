// The modes, with buttons to rename, remove and add.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

FocusScope {
    id: picture

    required property WelcomeView model
    readonly property bool editing: model.category.shown
    readonly property bool low: editing || tags.count > 6
    readonly property real pitch: low ? WelcomeTokens.tagLowPitch : WelcomeTokens.tagPitch

    property int renamed: -1 // the tag being renamed; -1 for a new mode

    // The focused item is gone: the nearest one takes the focus.
    function takeKeyboard(index: int): void {
        const tag = tags.itemAt(Math.min(index, tags.count - 1)) as ModeTag;
        if (tag)
            tag.takeKeyboard();
    }

    implicitHeight: WelcomeTokens.stageHeight

    Connections {
        target: picture.model.category
        function onShownChanged(): void {
            if (picture.editing)
                return;
            const tag = tags.itemAt(picture.renamed) as ModeTag;
            picture.renamed = -1;
            if (tag)
                tag.takeBack();
            else if (add.visible)
                add.forceActiveFocus(Qt.OtherFocusReason);
            else
                picture.takeKeyboard(0);
        }
    }

    Column {
        anchors.centerIn: parent
        width: WelcomeTokens.tagsWidth
        spacing: picture.low ? DarkUI.space6 : 0

        Item {
            width: parent.width
            height: Math.ceil(tags.count / 2) * picture.pitch
            Accessible.role: Accessible.List
            Accessible.name: picture.model.title

            Repeater {
                id: tags
                model: picture.model.modes

                ModeTag {
                    required property int index
                    x: index % 2 * WelcomeTokens.tagColumn
                    y: Math.floor(index / 2) * picture.pitch
                    width: WelcomeTokens.tagWidth
                    height: picture.low ? WelcomeTokens.tagLowHeight : WelcomeTokens.tagHeight
                    onRenameWanted: {
                        picture.renamed = index;
                        picture.model.beginRename(skillId);
                    }
                    onRemoveWanted: {
                        const place = index; // a copy, since it is destroyed with the tag
                        picture.model.removeCategory(skillId);
                        picture.takeKeyboard(place);
                    }
                }
            }
        }

        AddCategoryButton {
            id: add
            visible: picture.model.canAddCategory && !picture.editing
            onClicked: picture.model.addCategory()
        }

        CategoryRow {
            width: parent.width
            visible: picture.editing
            model: picture.model
        }

        DarkText {
            width: parent.width
            visible: text !== "" && !picture.editing
            text: picture.model.modesNote

            Announcer {
                text: picture.model.modesNote
            }

            role: DarkUI.small
            color: DarkUI.textTertiary
            elide: Text.ElideRight
            Accessible.role: Accessible.AlertMessage
        }
    }
}
