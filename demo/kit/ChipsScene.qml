// Chips, a menu and popovers.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.DemoKit

Rectangle {
    implicitWidth: 1000
    implicitHeight: 660
    color: "#22262F"

    Plate {
        x: 40
        y: 40
        width: 920
        height: 132
        radius: DarkUI.radiusCard
        color: DarkUI.capsuleGround

        DarkKicker {
            x: 28
            y: 24
            text: "Chip states"
        }
        Row {
            x: 28
            y: 58
            spacing: 34

            Sample {
                caption: "Plain"
                DarkChip { text: "Design"; dotColor: "#BF5AF2" }
            }
            Sample {
                caption: "Hovered, idle form"
                DarkChip { text: "Design"; dotColor: "#BF5AF2"; playOnHover: true; hovered: true }
            }
            Sample {
                caption: "Hovered, running"
                DarkChip { text: "Design"; dotColor: "#BF5AF2"; hovered: true }
            }
            Sample {
                caption: "The session’s"
                DarkChip { text: "Design"; dotColor: "#BF5AF2"; selectedTint: "#BF5AF2" }
            }
            Sample {
                caption: "Pressed"
                DarkChip { text: "Design"; dotColor: "#BF5AF2"; pressed: true }
            }
            Sample {
                caption: "Keyboard focus"
                DarkChip { text: "Design"; dotColor: "#BF5AF2"; ringed: true }
            }
            Sample {
                caption: "Large"
                DarkChip {
                    text: "Marketing"
                    dotColor: "#FF375F"
                    selectedTint: "#FF375F"
                    large: true
                    checked: true
                }
            }
        }
    }

    DarkMenuPanel {
        x: 756
        y: 190
        width: 166

        DarkMenuRow { text: "Rename…"; hovered: true }
        DarkMenuRow { text: "Change color…" }
        DarkMenuSeparator {}
        DarkMenuRow { text: "Delete Marketing"; danger: true }
    }

    DarkPopover {
        x: 40
        y: 252
        height: 158
        arrowX: 142

        DarkText {
            x: DarkUI.space16
            y: DarkUI.space10
            text: "Rename skill"
            role: DarkUI.bodyStrong
        }
        DarkText {
            x: DarkUI.space16
            y: 29
            text: "Use a short name you will recognize at a glance."
            role: DarkUI.small
            color: DarkUI.textSecondary
        }
        DarkKicker {
            role: DarkUI.sectionLabel
            x: DarkUI.space16
            y: 52
            text: "Name"
        }
        DarkTextField {
            x: DarkUI.space16
            y: 70
            width: 252
            minHeight: DarkUI.popoverFieldHeight
            padding: DarkUI.space10
            role: DarkUI.caption
            text: "Design"
            focused: true
        }
        KitButton {
            kind: KitButton.Text
            x: DarkUI.space16
            y: 120
            height: DarkUI.popoverButtonHeight
            text: "Cancel"
            role: DarkUI.captionMedium
        }
        DarkPrimaryButton {
            anchors.right: parent.right
            anchors.rightMargin: DarkUI.space16
            y: 120
            height: DarkUI.popoverButtonHeight
            text: "Save"
            role: DarkUI.captionStrong
        }
    }

    DarkPopover {
        x: 360
        y: 252
        height: 112
        arrowX: 142

        DarkText {
            x: DarkUI.space16
            y: DarkUI.space8
            text: "Choose a color"
            role: DarkUI.bodyStrong
        }
        DarkKicker {
            role: DarkUI.sectionLabel
            x: DarkUI.space16
            y: 30
            text: "Color"
        }
        SwatchRow {
            x: DarkUI.space16
            y: 44
            width: 252
            colors: ["#FF375F", "#FF9F0A", "#7A78FF", "#30D158", "#64D2FF", "#FFD60A", "#BF5AF2",
                     "#FF6482", "#40C8E0", "#ACF35C"]
            currentIndex: 6
        }
        KitButton {
            kind: KitButton.Text
            x: DarkUI.space16
            y: 77
            height: DarkUI.popoverButtonHeight
            text: "Cancel"
            role: DarkUI.captionMedium
        }
        DarkPrimaryButton {
            anchors.right: parent.right
            anchors.rightMargin: DarkUI.space16
            y: 77
            height: DarkUI.popoverButtonHeight
            text: "Save"
            role: DarkUI.captionStrong
        }
    }

    GlassBackground {
        x: 40
        y: 470
        width: 380
        height: 150

        DarkCloseButton {
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: DarkUI.space16
        }
        DarkText {
            x: DarkUI.space20
            y: DarkUI.space20
            text: "A card that floats"
            role: DarkUI.cardTitle
        }
        DarkText {
            x: DarkUI.space20
            y: 50
            text: "Its shadow is two images that stretch."
            color: DarkUI.textSecondary
        }
        DarkPrimaryButton {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.margins: DarkUI.space20
            text: "Keep"
        }
    }

    DarkWindowGlass {
        x: 480
        y: 430
        width: 440
        height: 190
        shadowed: true

        DarkTopStrip {
            width: parent.width
            title: "Settings"
        }
        DarkCard {
            x: DarkUI.space24
            y: 50
            width: parent.width - 2 * DarkUI.space24
            height: 100

            DarkText {
                text: "A card on the ground of a window"
                role: DarkUI.bodyMedium
            }
            DarkText {
                y: 26
                text: "No card stands in a card."
                role: DarkUI.caption
                color: DarkUI.textCaption
            }
        }
    }
}
