import QtQuick

Item {
    property var anything
    required property var model
    property string variable: "property var"
}
