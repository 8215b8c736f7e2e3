// A window's view in a window's frame, as it stands on a desktop.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: scene

    required property url view
    required property QtObject model
    property string title // in the strip
    property bool minimisable: true
    property size fixed // of the view; empty for the size that it wants
    readonly property alias item: loader.item

    implicitWidth: glass.width + 2 * DarkUI.space36
    implicitHeight: glass.height + 2 * DarkUI.space36

    Component.onCompleted: loader.setSource(scene.view, { "model": scene.model })

    DarkWindowGlass {
        id: glass
        anchors.centerIn: parent
        shadowed: true
        width: loader.width
        height: strip.height + loader.height

        DarkTopStrip {
            id: strip
            width: parent.width
            title: scene.title
            minimisable: scene.minimisable
        }

        Loader {
            id: loader
            y: strip.height
            width: scene.fixed.width > 0 ? scene.fixed.width : implicitWidth
            height: scene.fixed.height > 0 ? scene.fixed.height : implicitHeight
            focus: true
        }
    }
}
