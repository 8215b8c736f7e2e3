// The command center's view: background and content, which scrolls on a low screen.
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
