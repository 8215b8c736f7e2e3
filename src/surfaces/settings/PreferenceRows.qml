// The rows of single preferences, with a view per kind.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Settings

Repeater {
    id: rows

    delegate: Loader {
        required property int index
        required property PreferenceRowModel modelData

        width: rows.width
        Component.onCompleted: setSource(modelData.kind === PreferenceRowModel.Switch
                                         ? "SwitchRow.qml"
                                         : modelData.kind === PreferenceRowModel.Slider
                                         ? "SliderRow.qml" : "StepperRow.qml",
                                         {first: index === 0, preference: modelData})
    }
}
