// The years that have work in them, to choose the one that is shown.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ArrowGroup {
    id: picker

    required property rhythmCard content
    signal chosen(int year)

    implicitWidth: segments.implicitWidth
    implicitHeight: DarkUI.chipHeight
    list: segments
    onMoved: index => chosen(content.years[index].year)
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Year")

    Row {
        id: segments

        Repeater {
            model: picker.content.years

            KitPressable {
                id: segment
                required property yearChoice modelData
                required property int index
                readonly property bool current: modelData.year === picker.content.picture.year

                implicitWidth: label.implicitWidth + DarkUI.space20
                implicitHeight: DarkUI.chipHeight
                name: modelData.label
                Accessible.role: Accessible.PageTab
                Accessible.selectable: true
                Accessible.selected: current
                Accessible.description: current ? qsTr("Selected") : qsTr("Not selected")
                onClicked: picker.chosen(modelData.year)

                Rectangle {
                    anchors.fill: parent
                    radius: DarkUI.radiusSmall
                    color: segment.current ? DarkUI.segment
                         : segment.hovered ? DarkUI.quietHover : DarkUI.clear
                }

                DarkText {
                    id: label
                    anchors.centerIn: parent
                    text: segment.modelData.year
                    role: segment.current ? DarkUI.captionStrong : DarkUI.captionMedium
                    color: segment.current || segment.hovered ? DarkUI.t1 : DarkUI.t2
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
