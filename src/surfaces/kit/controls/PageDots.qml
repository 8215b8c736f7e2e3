// The position among a few pages.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Row {
    id: dots

    required property int count
    property int current: 0

    spacing: DarkUI.space8
    Accessible.role: Accessible.Indicator
    Accessible.name: KitText.place(current, count)

    Repeater {
        model: dots.count

        Plate {
            required property int index
            width: DarkUI.pageDotSize
            height: DarkUI.pageDotSize
            radius: width / 2
            color: index === dots.current ? DarkUI.pageDotCurrent : DarkUI.pageDot
        }
    }
}
