// The capsule at the top of a screen.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

SampleFrame {
    id: picture

    required property WelcomeView model

    implicitHeight: WelcomeTokens.stageHeight
    label: model.sampleLabel

    SampleDesk {
        anchors.fill: parent
        barHeight: WelcomeTokens.notchBar

        Miniature {
            x: Math.round((parent.width - width) / 2)
            width: implicitWidth
            height: implicitHeight
            source: "qrc:/qt/qml/Vantle/Welcome/SampleCapsule.qml"
            samples: picture.model.samples
            // Long names widen it.
            zoom: Math.min(WelcomeTokens.notchZoom, (parent.width - 2 * DarkUI.space16)
                                                    / picture.model.samples.capsule.openFrame.width)
            margin: DarkUI.shadowCapsule.blur + DarkUI.shadowCapsule.offset
        }
    }
}
