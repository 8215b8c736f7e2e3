Item {
    property string keys: "⌘D"
    property string others: qsTr("⌘Q")
}
