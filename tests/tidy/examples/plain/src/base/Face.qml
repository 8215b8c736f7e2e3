Item {
    // Deaf while it is hidden.
    property string words: qsTr("Nobody is here")
}
