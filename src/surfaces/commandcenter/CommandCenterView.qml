// The command center in its window: the ground and the content, which scrolls where the screen is
// too low for it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.CommandCenter
import Vantle.Kit
import Vantle.Panel

FloatingSurface {
    id: view

    required property CommandCenterModel model

    groundWidth: content.implicitWidth
    groundHeight: Math.min(content.implicitHeight, maximumHeight)
    enabled: true

    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Vantle Command Center")

    Keys.onEscapePressed: view.dismissed()

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
