// The years with work, one of which is shown. Scrolls sideways by wheel, pointer and keys when they
// do not fit, and keeps the shown year visible.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ArrowGroup {
    id: picker

    required property rhythmCard content
    property Item shown: null // the segment of the shown year
    readonly property real wheelUnits: 8 // per degree of the wheel
    readonly property real pixelsPerDegree: 3
    signal chosen(int year)

    onShownChanged: bringIntoSight(shown)

    function bringIntoSight(segment: Item): void {
        if (!segment)
            return;
        const left = segment.x - DarkUI.edgeFadeLength;
        const right = segment.x + segment.width + DarkUI.edgeFadeLength;
        if (left < area.contentX)
            scrollTo(left);
        else if (right > area.contentX + area.width)
            scrollTo(right - area.width);
    }
    function scrollTo(x: real): void {
        area.contentX = Math.max(0, Math.min(x, area.contentWidth - area.width));
    }

    implicitWidth: segments.implicitWidth
    implicitHeight: DarkUI.chipHeight
    list: segments
    onMoved: index => chosen(content.years[index].year)
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Year")

    Flickable {
        id: area
        readonly property real ringRoom: DarkUI.focusWidth + DarkUI.focusGap
        anchors.fill: parent
        anchors.topMargin: -ringRoom
        anchors.bottomMargin: -ringRoom
        contentWidth: segments.width
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentWidth > width
        clip: interactive
        // The shown year is wider and shifts those after it.
        onContentWidthChanged: picker.bringIntoSight(picker.shown)
        onWidthChanged: picker.bringIntoSight(picker.shown)

        WheelHandler {
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            enabled: area.interactive
            target: null
            onWheel: wheel => {
                const pixels = wheel.pixelDelta.x + wheel.pixelDelta.y;
                const degrees = (wheel.angleDelta.x + wheel.angleDelta.y)
                                / picker.wheelUnits;
                picker.scrollTo(area.contentX - (pixels !== 0 ? pixels
                                                              : degrees * picker.pixelsPerDegree));
            }
        }

        Row {
            id: segments
            y: area.ringRoom

            // By count, not by list: a new list would recreate all segments and lose the focus.
            Repeater {
                model: picker.content.years.length

                KitPressable {
                    id: segment
                    required property int index
                    readonly property int year: picker.content.years[index]?.year ?? 0
                    readonly property bool current: year === picker.content.picture.year

                    implicitWidth: label.implicitWidth + DarkUI.space20
                    implicitHeight: DarkUI.chipHeight
                    name: picker.content.years[index]?.label ?? ""
                    Accessible.role: Accessible.PageTab
                    Accessible.selectable: true
                    Accessible.selected: current
                    Accessible.description: current ? qsTr("Selected") : qsTr("Not selected")
                    onClicked: picker.chosen(year)
                    onActiveFocusChanged: if (activeFocus) picker.bringIntoSight(segment)
                    onCurrentChanged: if (current) picker.shown = segment

                    Plate {
                        anchors.fill: parent
                        radius: DarkUI.radiusSmall
                        color: segment.current ? DarkUI.segmentFill
                             : segment.hovered ? DarkUI.quietHover : DarkUI.clear
                    }

                    DarkText {
                        id: label
                        anchors.centerIn: parent
                        text: segment.year
                        role: segment.current ? DarkUI.captionStrong : DarkUI.captionMedium
                        color: segment.current || segment.hovered ? DarkUI.textPrimary
                               : DarkUI.textSecondary
                        Accessible.ignored: true
                    }

                    FocusRing {
                        shown: segment.ringed
                        controlRadius: DarkUI.radiusSmall
                    }
                }
            }
        }
    }

    EdgeFade {
        anchors.right: parent.right
        width: DarkUI.edgeFadeLength
        height: parent.height
        edge: Qt.RightEdge
        visible: !area.atXEnd
    }

    EdgeFade {
        width: DarkUI.edgeFadeLength
        height: parent.height
        edge: Qt.LeftEdge
        visible: !area.atXBeginning
    }
}
