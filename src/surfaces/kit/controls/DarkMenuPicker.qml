// A choice from a menu. Shows `currentIndex` and requests another with activated(). Loads the menu
// on first use, since a window may have dozens of pickers.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: picker

    required property string title // what is chosen; for screen readers
    required property list<string> options
    property int currentIndex: -1
    property string placeholder // shown without a choice
    property bool quiet: false // whether the choice means "none"
    property real chevronRight: DarkUI.space8 // to the right edge
    property TypeRole role: DarkUI.captionMedium
    property real textLeft: DarkUI.space10 // increase it to make room for a symbol
    readonly property bool opened: made !== null && made.opened
    readonly property DarkMenu made: menu.item as DarkMenu // null before it is first opened
    readonly property string currentText: options[currentIndex] ?? placeholder
    signal activated(int index)

    function open(): void {
        if (!made)
            menu.setSource("DarkMenuChoices.qml", { "picker": picker });
        made.openAt(picker, Math.max(currentIndex, 0));
    }
    function close(): void {
        if (made)
            made.close();
    }

    // Whole pixels, for an equally sharp right edge.
    implicitWidth: Math.ceil(textLeft + label.implicitWidth + DarkUI.space8 + chevron.width
                             + chevronRight)
    implicitHeight: DarkUI.menuHeight
    name: title
    onClicked: open()

    Accessible.role: Accessible.ComboBox
    Accessible.description: help === "" ? currentText : currentText + ". " + help

    Keys.onDownPressed: open()
    Keys.onUpPressed: open()

    Plate {
        id: ground
        anchors.fill: parent
        radius: DarkUI.radiusSmall
        color: picker.pressed || picker.opened ? DarkUI.fillPressed
             : picker.hovered ? DarkUI.fillHover : DarkUI.fill
        edge: DarkUI.hairline

        Behavior on color {
            ColorAnimation {
                duration: picker.stateTime
                easing.type: Easing.OutCubic
            }
        }
    }

    DarkText {
        id: label
        anchors.left: parent.left
        anchors.leftMargin: picker.textLeft
        anchors.right: chevron.left
        anchors.rightMargin: DarkUI.space8
        anchors.verticalCenter: parent.verticalCenter
        text: picker.currentText
        role: picker.role
        color: !picker.enabled ? DarkUI.textDisabled
               : picker.quiet ? DarkUI.textSecondary : DarkUI.textPrimary
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    KitIcon {
        id: chevron
        anchors.right: parent.right
        anchors.rightMargin: picker.chevronRight
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.iconSmall
        height: DarkUI.iconSmall
        name: "chevron-down"
        color: picker.enabled ? DarkUI.iconQuiet : DarkUI.iconDisabled
    }

    FocusRing {
        shown: picker.ringed
        controlRadius: ground.radius
    }

    Loader {
        id: menu
    }
}
