// One step of the type scale. Use it through DarkText, or by its font and line.
import QtQuick

QtObject {
    id: role

    property string family: Typeface.text
    required property int size // px
    required property int line // px from baseline to baseline
    property int weight: Font.Normal
    property real tracking: 0 // em

    readonly property real standInTracking: family === Typeface.display ? Typeface.displayTracking : 0
    readonly property font font: Qt.font({
        family: role.family,
        pixelSize: role.size,
        weight: role.weight,
        letterSpacing: role.size * (role.tracking + role.standInTracking),
        hintingPreference: Font.PreferVerticalHinting
    })
}
