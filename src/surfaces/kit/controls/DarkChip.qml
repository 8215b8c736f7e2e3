// A chip: a name with a dot or a symbol. Arrow keys move between the chips of a group.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: chip

    required property string text
    property color dotColor: DarkUI.clear // transparent for no dot
    property color selectedTint: DarkUI.clear // the fill when chosen
    property bool large: false
    property bool checked: false // whether a large chip shows its check mark
    property bool playOnHover: false // turns the dot into a play symbol
    property bool choosable: false // one of several alternatives
    property TypeRole role: large ? DarkUI.captionMedium : DarkUI.smallMedium
    property int key: -1 // the owner's key for it
    readonly property bool hasDot: dotColor.a > 0
    readonly property bool showsPlay: playOnHover && (hovered || ringed)
    readonly property real leading: large ? DarkUI.space10 : DarkUI.space8
    readonly property real gap: large ? DarkUI.space8 : DarkUI.space8
    signal contextMenuRequested(bool byKey)

    implicitWidth: (hasDot ? leading + DarkUI.chipDotSize + gap : leading + DarkUI.space2)
                   + label.implicitWidth + (check.visible ? gap + check.width : 0)
                   + (large ? DarkUI.space12 : 13)
    implicitHeight: large ? DarkUI.largeChipHeight : DarkUI.chipHeight
    opacity: enabled ? 1 : DarkUI.disabledOpacity
    name: text

    // Qt's AT-SPI bridge omits "checkable": only the role shows that it can be chosen.
    Accessible.role: choosable ? Accessible.RadioButton : Accessible.Button
    Accessible.checkable: choosable
    Accessible.checked: selectedTint.a > 0 || checked
    Accessible.onToggleAction: if (chip.enabled) chip.clicked()

    GlassChipBackground {
        id: ground
        anchors.fill: parent
        selectedTint: chip.selectedTint
        hovering: chip.hovered
        pressed: chip.pressed
    }

    FlatDot {
        x: chip.leading
        anchors.verticalCenter: parent.verticalCenter
        visible: chip.hasDot && !chip.showsPlay
        width: DarkUI.chipDotSize
        height: DarkUI.chipDotSize
        color: chip.dotColor
    }

    KitIcon {
        x: chip.leading - 1.5
        anchors.verticalCenter: parent.verticalCenter
        visible: chip.showsPlay
        width: DarkUI.iconTiny
        height: DarkUI.iconTiny
        name: "play"
        color: chip.dotColor
    }

    DarkText {
        id: label
        x: chip.hasDot ? chip.leading + DarkUI.chipDotSize + chip.gap : chip.leading + DarkUI.space2
        anchors.verticalCenter: parent.verticalCenter
        text: chip.text
        role: chip.role
        color: DarkUI.textChip
        Accessible.ignored: true
    }

    KitIcon {
        id: check
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space12
        anchors.verticalCenter: parent.verticalCenter
        visible: chip.large && chip.checked
        width: DarkUI.iconTiny
        height: DarkUI.iconTiny
        name: "check"
        color: DarkUI.textPrimary
    }

    FocusRing {
        shown: chip.ringed
        controlRadius: ground.radius
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: chip.contextMenuRequested(false)
    }

    Keys.onMenuPressed: chip.contextMenuRequested(true)
}
