// A view that takes what it gets.
import QtQuick

Item {
    required property QtObject model
    objectName: "view"
}
