// A view with a size of its own, and a field for the keyboard.
import QtQuick

FocusScope {
    id: view
    required property QtObject model

    implicitWidth: 200
    implicitHeight: view.model.objectName === "tall" ? 2000 : 100

    TextInput {
        objectName: "field"
        width: 100
        height: 20
        focus: true
    }
}
