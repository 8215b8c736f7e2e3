// One of several, chosen from a menu. It shows `currentIndex` and asks for another by activated().
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: picker

    required property string title // what is chosen; read out
    required property list<string> options
    property int currentIndex: -1
    property string placeholder // shown while nothing is chosen
    property bool quiet: false // what is chosen stands for nothing
    property TypeRole role: DarkUI.captionMedium
    property real textLeft: DarkUI.space10 // a larger one leaves room for a sign
    property alias opened: menu.opened
    readonly property string currentText: options[currentIndex] ?? placeholder
    signal activated(int index)

    function open(): void {
        menu.openAt(picker, Math.max(currentIndex, 0));
    }

    // Whole pixels, so that its right edge is as sharp as its left one.
    implicitWidth: Math.ceil(textLeft + label.implicitWidth + DarkUI.space8 + chevron.width
                             + DarkUI.space8)
    implicitHeight: DarkUI.menuHeight
    name: title
    onClicked: open()

    Accessible.role: Accessible.ComboBox
    Accessible.description: currentText

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
        color: !picker.enabled ? DarkUI.t4 : picker.quiet ? DarkUI.t2 : DarkUI.t1
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    KitIcon {
        id: chevron
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space8
        anchors.verticalCenter: parent.verticalCenter
        width: DarkUI.space12
        height: DarkUI.space12
        name: "chevron-down"
        color: picker.enabled ? DarkUI.iconQuiet : DarkUI.iconDisabled
    }

    FocusRing {
        shown: picker.ringed
        controlRadius: ground.radius
    }

    DarkMenu {
        id: menu
        name: picker.title
        minimumWidth: picker.width

        Repeater {
            model: picker.options

            DarkMenuRow {
                required property string modelData
                required property int index
                text: modelData
                checkable: true
                checked: index === picker.currentIndex
                onTriggered: {
                    menu.close();
                    picker.activated(index);
                }
            }
        }
    }
}
