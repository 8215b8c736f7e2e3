// A segmented control. Shows `currentIndex` and requests another with activated().
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

ArrowGroup {
    id: picker

    required property list<string> options
    property int currentIndex: 0
    property string name
    property TypeRole role: DarkUI.captionMedium
    property real radius: DarkUI.radiusBanner
    readonly property real inset: radius - DarkUI.radiusSegment
    signal activated(int index)

    // New options create new segments: keeps the focus on the chosen one.
    function takeUp(): void {
        current = currentIndex;
        refresh();
        const chosen = stops()[current];
        if (activeFocus && chosen)
            chosen.focusByKeyboard();
    }

    function leftOf(index: int): real {
        return KitText.partLeft(Array.from(options), DarkUI.captionStrong.font, 2 * DarkUI.space6,
                                width - 2 * inset, index);
    }
    function widthOf(index: int): real {
        return leftOf(index + 1) - leftOf(index);
    }

    implicitWidth: 300
    implicitHeight: DarkUI.buttonHeight
    list: segments
    current: currentIndex

    // Arrow keys choose immediately.
    onMoved: index => activated(index)

    Accessible.role: Accessible.PageTabList
    Accessible.name: name

    Timer {
        id: recreated
        interval: 0
        onTriggered: picker.takeUp()
    }

    Plate {
        anchors.fill: parent
        radius: picker.radius
        color: DarkUI.cardFill
    }

    Plate {
        x: picker.inset + picker.leftOf(picker.currentIndex)
        y: picker.inset
        visible: picker.currentIndex >= 0
        width: picker.widthOf(picker.currentIndex)
        height: parent.height - 2 * picker.inset
        radius: picker.radius - picker.inset
        color: DarkUI.segmentFill

        Behavior on x {
            NumberAnimation {
                duration: DarkUI.segmentTime
                easing.type: Easing.OutCubic
            }
        }
    }

    Row {
        id: segments
        x: picker.inset
        y: picker.inset
        height: parent.height - 2 * picker.inset

        Repeater {
            model: picker.options

            KitPressable {
                id: segment
                required property string modelData
                required property int index
                readonly property bool chosen: index === picker.currentIndex

                width: picker.widthOf(index)
                height: parent ? parent.height : 0
                name: modelData
                Accessible.role: Accessible.PageTab
                Accessible.checkable: true
                Accessible.checked: chosen
                Accessible.selectable: true
                Accessible.selected: chosen
                Accessible.description: chosen ? qsTr("Selected") : qsTr("Not selected")
                onClicked: picker.activated(index)

                DarkText {
                    anchors.centerIn: parent
                    text: segment.modelData
                    role: segment.chosen ? DarkUI.captionStrong : picker.role
                    color: segment.chosen || segment.hovered ? DarkUI.textPrimary
                           : DarkUI.textSecondary
                    Accessible.ignored: true
                }

                FocusRing {
                    shown: segment.ringed
                    controlRadius: picker.radius - picker.inset
                }
            }
        }
    }

    onOptionsChanged: recreated.restart()
    onCurrentIndexChanged: {
        current = currentIndex;
        refresh();
    }
}
