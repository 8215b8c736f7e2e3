// The base of all review pages: a heading at the top, content below.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Wrapped

FocusScope {
    id: page

    required property WrappedView model
    // A copy: a leaving page must not change.
    required property reviewTexts texts
    property string kicker
    property bool animated: false // whether its parts enter in sequence
    property bool leaving: false
    property Item ruledFoot: null // a foot that begins with a hairline
    property string lines // the page's texts, for screen readers
    readonly property real kickerHeight: DarkUI.kicker.line
    // The quiet block below the hours: always as high as with three lines, so that what stands
    // above it stays where it is from one period to the next.
    readonly property real quietHeight: DarkUI.hairlineWidth + DarkUI.space14
                                        + quietLines * DarkUI.body.line
    readonly property int quietLines: 3
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
