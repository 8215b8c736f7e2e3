// The panel that a click on the brick opens.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

SampleFrame {
    id: picture

    required property WelcomeView model

    implicitHeight: WelcomeTokens.panelStageHeight
    label: model.sampleLabel

    SampleDesk {
        anchors.fill: parent
        barHeight: WelcomeTokens.panelBar

        SampleBrick {
            anchors.horizontalCenter: parent.horizontalCenter
            y: (WelcomeTokens.panelBar - height) / 2
        }

        Miniature {
            x: Math.round((parent.width - width) / 2)
            y: WelcomeTokens.panelBar + DarkUI.space6
            width: implicitWidth
            height: implicitHeight
            source: "qrc:/qt/qml/Vantle/Welcome/SamplePanel.qml"
            samples: picture.model.samples
            zoom: WelcomeTokens.panelZoom
            margin: DarkUI.shadowFloating.blur + DarkUI.shadowFloating.offset
        }
    }
}
