// The command center in its window: the ground, its shadow, and the content, which scrolls where
// the screen is too low for it. The window is larger than the ground by the room for the shadow.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.CommandCenter
import Vantle.Kit

FocusScope {
    id: view

    required property CommandCenterModel model
    required property bool composited // else the ground alone is there, with square corners
    property bool up: false // set once the window is shown
    property int maximumHeight: 1000000 // px, of the ground

    readonly property ShadowToken shadow: DarkUI.shadowFloating
    readonly property real aside: composited ? shadow.blur : 0
    readonly property real above: composited ? Math.max(0, shadow.blur - shadow.offset) : 0
    readonly property real below: composited ? shadow.blur + shadow.offset : 0
    readonly property rect groundRect: Qt.rect(aside, above, content.implicitWidth,
                                               Math.min(content.implicitHeight, maximumHeight))
    signal dismissed

    implicitWidth: groundRect.width + 2 * aside
    implicitHeight: groundRect.height + above + below
    focus: true

    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Vantle Command Center")

    Keys.onEscapePressed: view.dismissed()

    GlassBackground {
        id: ground

        property real shown: view.up ? 1 : 0

        x: view.aside
        y: view.above - (1 - shown) * DarkUI.cardRise
        width: view.groundRect.width
        height: view.groundRect.height
        radius: view.composited ? DarkUI.radiusFloating : 0
        color: view.composited ? DarkUI.floatingGround : DarkUI.windowGround
        shadowed: view.composited
        opacity: shown

        Behavior on shown {
            NumberAnimation {
                // Without a compositor there is nothing to fade into.
                duration: view.composited ? DarkUI.cardInTime : 0
                easing.type: Easing.OutCubic
            }
        }

        DarkScrollView {
            anchors.fill: parent
            anchors.margins: DarkUI.hairlineWidth
            faded: false
            focus: true
            contentHeight: content.implicitHeight - 2 * DarkUI.hairlineWidth

            CommandCenterContent {
                id: content
                x: -DarkUI.hairlineWidth
                y: -DarkUI.hairlineWidth
                width: implicitWidth
                model: view.model
                focus: true
            }
        }
    }
}
