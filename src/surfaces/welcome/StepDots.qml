// The progress through the steps.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Item {
    id: dots

    required property int count
    required property int current

    implicitWidth: (count - 1) * WelcomeTokens.dotPitch + WelcomeTokens.dot
    implicitHeight: WelcomeTokens.dot
    Accessible.role: Accessible.Indicator
    Accessible.name: KitText.step(current, count)

    Repeater {
        model: dots.count

        FlatDot {
            required property int index
            x: index * WelcomeTokens.dotPitch
            width: WelcomeTokens.dot
            height: WelcomeTokens.dot
            color: index === dots.current ? WelcomeTokens.dotCurrent
                 : index < dots.current ? WelcomeTokens.dotPast : WelcomeTokens.dotToCome
        }
    }
}
