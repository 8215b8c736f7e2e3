// The poster of a sample week.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome
import Vantle.Wrapped

SampleFrame {
    id: picture

    required property WelcomeView model

    implicitHeight: WelcomeTokens.posterStageHeight
    label: model.sampleLabel

    DarkShadow {
        anchors.fill: poster
        level: DarkUI.shadowPopover
        radius: poster.radius
    }

    SharePosterPicture {
        id: poster
        anchors.centerIn: parent
        width: WelcomeTokens.posterWidth
        height: implicitHeight
        radius: DarkUI.radiusWindow
        poster: picture.model.samples.poster
    }
}
