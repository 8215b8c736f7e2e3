// What all pages of a review have in common: a heading at the top, and room below it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Wrapped

FocusScope {
    id: page

    required property WrappedView model
    // As they were when the page was shown: it must not change while it is on its way out.
    required property reviewTexts texts
    property string kicker
    property bool animated: false // its parts come in one after the other
    property bool leaving: false
    property string lines // what stands on it, as it is read out
    readonly property real kickerHeight: DarkUI.kicker.line
    readonly property alias kickerWidth: heading.width

    width: parent ? parent.width : 0
    height: parent ? parent.height : 0
    enabled: !leaving
    Accessible.role: Accessible.Pane
    Accessible.name: kicker
    Accessible.description: lines
    Accessible.focusable: true

    CascadeIn {
        animated: page.animated

        DarkKicker {
            id: heading
            text: page.kicker
        }
    }
}
