// What is the cards' own.
QtObject {
    readonly property color ground: "#0A0A0F"
    readonly property int fadeTime: 250
}
