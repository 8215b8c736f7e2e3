// A card.
Rectangle {
    width: 34
    height: 56
}
