// The overlay below a chip or the add row: the chip's menu, or the editor. A press outside closes
// it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit

FocusScope {
    id: overlay

    required property NotchCapsule capsule
    required property bool composited

    readonly property bool hasMenu: capsule.menuSkillId !== ""
    property Item shown: null
    readonly property rect anchor: capsule.overlayAnchor

    function present(item: Item): void {
        shown = item;
        item.forceActiveFocus(Qt.PopupFocusReason);
    }
    function clamped(left: real, wide: real): real {
        const margin = CapsuleTokens.overlayMargin;
        return Math.round(Math.max(margin, Math.min(left, width - wide - margin)));
    }

    Binding {
        target: overlay.capsule
        property: "overlayRect"
        value: overlay.shown ? Qt.rect(overlay.shown.x, overlay.shown.y, overlay.shown.width,
                                       overlay.shown.height)
                             : Qt.rect(0, 0, 0, 0)
    }

    MouseArea {
        anchors.fill: parent
        enabled: overlay.shown !== null
        acceptedButtons: Qt.AllButtons
        onPressed: overlay.capsule.dismissOverlay()
    }

    // A Repeater of one: in Qt 6.4 a Loader cannot create bound components.
    Repeater {
        model: overlay.hasMenu ? 1 : 0
        onItemAdded: (index, item) => {
            overlay.present(item);
            if (overlay.capsule.menuByKey)
                (item as ChipMenu).focusRow(0);
        }
        onItemRemoved: overlay.shown = null

        ChipMenu {
            x: overlay.clamped(overlay.anchor.x, width)
            y: overlay.anchor.y + overlay.anchor.height + DarkUI.space4
            width: implicitWidth
            height: implicitHeight
            skillName: overlay.capsule.menuSkillName
            composited: overlay.composited
            onRenameRequested: overlay.capsule.chipRequestsRename()
            onRecolorRequested: overlay.capsule.chipRequestsRecolor()
            onDeleteRequested: overlay.capsule.chipRequestsDelete()
            onDismissed: overlay.capsule.dismissOverlay()
        }
    }

    Repeater {
        model: overlay.capsule.editor.shown ? 1 : 0
        onItemAdded: (index, item) => overlay.present(item)
        onItemRemoved: overlay.shown = null

        SkillPopoverView {
            readonly property real middle: overlay.anchor.x + overlay.anchor.width / 2

            x: overlay.clamped(middle - width / 2, width)
            y: overlay.anchor.y + overlay.anchor.height + CapsuleTokens.popoverGap + arrowHeight
            arrowX: middle - x
            composited: overlay.composited
            editor: overlay.capsule.editor
        }
    }
}
