// The upper part of the welcome, cross-fading between pictures.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Plate {
    id: stage

    required property WelcomeView model
    property int front: 0 // index of the loader with the current picture
    readonly property list<string> pictures: [
        "PickPicture", "ModesPicture", "PressPicture", "StopPicture", "AppsPicture",
        "NotchPicture", "DashboardPicture", "PanelPicture", "WrappedPicture", "DonePicture"
    ]
    readonly property Item picture: (loaders.itemAt(front) as Loader)?.item ?? null

    function change(): void {
        front = 1 - front;
        const loader = loaders.itemAt(front) as Loader;
        loader.setSource(pictures[model.step] + ".qml", { "model": model });
        fade.restart();
    }

    implicitHeight: picture ? picture.implicitHeight : WelcomeTokens.stageHeight
    radius: DarkUI.radiusCard
    color: WelcomeTokens.stage

    Component.onCompleted: {
        change();
        fade.complete();
    }

    Connections {
        target: stage.model
        function onStepChanged(): void {
            stage.change();
        }
    }

    NumberAnimation {
        id: fade

        property real progress: 1

        target: fade
        property: "progress"
        from: 0
        to: 1
        duration: DarkUI.stageFadeTime
        easing.type: Easing.OutCubic
        onFinished: (loaders.itemAt(1 - stage.front) as Loader).setSource("")
    }

    Repeater {
        id: loaders
        model: 2

        Loader {
            required property int index
            width: stage.width
            z: index === stage.front ? 1 : 0
            enabled: index === stage.front
            opacity: index === stage.front ? fade.progress : 1 - fade.progress
        }
    }
}
