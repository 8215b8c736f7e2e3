// What hangs below a chip or the add row: the chip's menu, or the editor. A press beside it closes
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
    readonly property Item shown: (hasMenu ? menu.item : editor.item) as Item
    readonly property rect anchor: capsule.overlayAnchor

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

    Loader {
        id: menu
        active: overlay.hasMenu
        focus: active
        onLoaded: item.forceActiveFocus(Qt.PopupFocusReason)
        sourceComponent: ChipMenu {
            x: overlay.clamped(overlay.anchor.x, width)
            y: overlay.anchor.y + overlay.anchor.height + DarkUI.space4
            skillName: overlay.capsule.menuSkillName
            shadowed: overlay.composited
            onRenameRequested: overlay.capsule.chipRequestsRename()
            onRecolorRequested: overlay.capsule.chipRequestsRecolor()
            onDeleteRequested: overlay.capsule.chipRequestsDelete()
            onDismissed: overlay.capsule.dismissOverlay()
        }
    }

    Loader {
        id: editor
        active: overlay.capsule.editor !== null
        focus: active
        onLoaded: item.forceActiveFocus(Qt.PopupFocusReason)
        sourceComponent: SkillPopoverView {
            readonly property real middle: overlay.anchor.x + overlay.anchor.width / 2

            x: overlay.clamped(middle - width / 2, width)
            y: overlay.anchor.y + overlay.anchor.height + CapsuleTokens.popoverGap + arrowHeight
            arrowX: middle - x
            editor: overlay.capsule.editor
        }
    }
}
