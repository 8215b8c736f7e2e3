// The capsule: the black shape at the top edge, and the overlay below it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit
import Vantle.Panel

PanelRoot {
    id: view

    required property NotchCapsule capsule

    readonly property real radius: composited ? capsule.bottomRadius : 0

    opacity: capsule.leaving ? 0 : 1

    Behavior on opacity {
        NumberAnimation {
            duration: CapsuleTokens.fadeTime * Motion.pace
            easing.type: Easing.OutCubic
        }
    }

    CapsuleMorph {
        id: morph
        target: view.capsule.frame
        opening: view.capsule.expanded
        still: !view.composited
    }

    // The input area, without menu and editor.
    Item {
        id: sensitive
        x: view.capsule.hoverRect.x
        y: view.capsule.hoverRect.y
        width: view.capsule.hoverRect.width
        height: view.capsule.hoverRect.height

        HoverHandler {
            id: hover
            onHoveredChanged: view.capsule.setHovered(hovered)
        }
    }

    Item {
        id: ground
        x: view.capsule.openFrame.x
        y: view.capsule.openFrame.y
        width: view.capsule.openFrame.width
        height: view.capsule.openFrame.height

        // Here, not in the content, which is small and transparent at first: from the moment the
        // capsule opens, every click is for the capsule.
        TapHandler {
            gesturePolicy: TapHandler.ReleaseWithinBounds
            // A press on the empty row may be released over a chip, which is no click on the
            // capsule.
            onTapped: eventPoint => {
                const place = ground.mapToItem(content, eventPoint.position);
                if (content.isGround(place))
                    view.capsule.click();
            }
        }
    }

    // Keeps the shadow off a bar above.
    Item {
        id: below
        y: view.capsule.openFrame.y
        width: view.width
        height: view.height - y
        clip: true

        DarkShadow {
            x: morph.x
            y: morph.y - below.y
            width: morph.width
            height: morph.height
            visible: body.visible && view.composited && (view.capsule.expanded || morph.running)
            level: DarkUI.shadowCapsule
            radius: view.radius
        }
    }

    Item {
        id: body
        x: morph.x
        y: morph.y
        width: morph.width
        height: morph.height
        visible: view.capsule.hasNotch || view.capsule.expanded || morph.running
        clip: true

        // A highlight inside the lower edge.
        Plate {
            y: -view.radius
            width: parent.width
            height: parent.height + view.radius
            radius: view.radius
            color: Qt.tint(DarkUI.capsuleGround, DarkUI.capsuleEdge)

            Plate {
                width: parent.width
                height: parent.height - DarkUI.hairlineWidth
                radius: view.radius
                color: DarkUI.capsuleGround
            }
        }

        CapsuleContent {
            id: content
            x: (body.width - width) / 2
            y: view.capsule.notchHeight
            width: view.capsule.openFrame.width
            height: view.capsule.rowViewHeight
            capsule: view.capsule
        }
    }

    // Below the capsule there is only its shadow, which needs a compositor.
    CapsuleToolTip {
        x: Math.round((view.width - width) / 2)
        y: view.capsule.openFrame.y + view.capsule.openFrame.height + CapsuleTokens.tipTop
        capsule: view.capsule
        wanted: hover.hovered && view.composited && view.capsule.expanded && !overlay.shown
    }

    CapsuleOverlay {
        id: overlay
        anchors.fill: parent
        capsule: view.capsule
        composited: view.composited
    }
}
