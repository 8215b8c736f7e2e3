// A push button. A surface has at most one primary button.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: button

    enum Kind {
        Primary,
        Secondary,
        Danger,
        Text
    }

    required property string text
    property int kind: KitButton.Secondary
    property string icon // before the text; empty for none
    property color accent: DarkUI.accent // the fill of the primary button
    property TypeRole role: kind === KitButton.Primary || kind === KitButton.Danger
                            ? DarkUI.bodyStrong : DarkUI.bodyMedium
    property real padding: kind === KitButton.Text ? 0 : DarkUI.buttonPadding
    property real radius: DarkUI.radiusButton
    property real fillOpacity: 1
    readonly property bool ownAccent: accent !== DarkUI.accent

    function primaryFill(): color {
        if (!enabled)
            return DarkUI.fillDisabled;
        if (pressed)
            return ownAccent ? Qt.darker(accent, 1.08) : DarkUI.accentPressed;
        if (hovered)
            return ownAccent ? Tint.lightened(accent, 0.15) : DarkUI.accentHover;
        return accent;
    }
    function dangerFill(): color {
        if (!enabled)
            return DarkUI.cardFill;
        return Tint.alpha(DarkUI.danger, pressed ? DarkUI.dangerFillPressedOpacity
                                       : hovered ? DarkUI.dangerFillHoverOpacity
                                       : DarkUI.dangerFillOpacity);
    }
    function secondaryFill(): color {
        if (!enabled)
            return DarkUI.cardFill;
        return pressed ? DarkUI.fillPressed : hovered ? DarkUI.fillHover : DarkUI.fill;
    }
    function fill(): color {
        switch (kind) {
        case KitButton.Primary:
            return primaryFill();
        case KitButton.Danger:
            return dangerFill();
        case KitButton.Text:
            return DarkUI.clear;
        default:
            return secondaryFill();
        }
    }
    function edge(): color {
        if (kind === KitButton.Primary || kind === KitButton.Text)
            return DarkUI.clear;
        if (kind === KitButton.Danger && enabled)
            return Tint.alpha(DarkUI.danger, DarkUI.dangerEdgeOpacity);
        return DarkUI.hairline;
    }
    function textColor(): color {
        if (!enabled)
            return DarkUI.textDisabled;
        switch (kind) {
        case KitButton.Primary:
            return Tint.inkOn(accent);
        case KitButton.Danger:
            return DarkUI.dangerTextOnFill;
        case KitButton.Text:
            return hovered || pressed || ringed ? DarkUI.textPrimary : DarkUI.textSecondary;
        default:
            return DarkUI.textPrimary;
        }
    }

    implicitWidth: Math.ceil(content.implicitWidth + 2 * padding) // whole px, for sharp edges
    implicitHeight: DarkUI.buttonHeight
    name: text

    Plate {
        anchors.fill: parent
        radius: button.radius
        opacity: button.fillOpacity
        color: button.fill()
        edge: button.edge()

        Behavior on color {
            ColorAnimation {
                duration: button.stateTime
                easing.type: Easing.OutCubic
            }
        }
    }

    Row {
        id: content
        anchors.centerIn: parent
        spacing: DarkUI.space6

        KitIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: button.icon !== ""
            name: button.icon
            color: label.color
        }

        DarkText {
            id: label
            text: button.text
            role: button.role
            color: button.textColor()
            Accessible.ignored: true
        }
    }

    FocusRing {
        shown: button.ringed
        controlRadius: button.radius
    }
}
