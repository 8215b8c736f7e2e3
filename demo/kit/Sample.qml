// A control with a caption below it.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Column {
    id: sample

    required property string caption

    spacing: DarkUI.space10

    // The caption comes after all children.
    Component.onCompleted: {
        word.parent = null;
        word.parent = sample;
    }

    Caption {
        id: word
        text: sample.caption
    }
}
