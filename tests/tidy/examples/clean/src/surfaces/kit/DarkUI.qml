import QtQuick

Item {
    // property var in a comment is talk only
    property color ink: "white"
}
