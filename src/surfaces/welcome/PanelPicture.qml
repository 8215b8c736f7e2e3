// What a click on the brick opens.
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

        SamplePanel {
            x: (parent.width - width * scale) / 2
            y: WelcomeTokens.panelBar + DarkUI.space6
            scale: WelcomeTokens.panelScale
            transformOrigin: Item.TopLeft
            samples: picture.model.samples
        }
    }
}
