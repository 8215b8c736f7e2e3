// A field for a whole number with its unit.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

DarkTextField {
    id: field

    required property string unit
    readonly property real figureWidth: 118
    signal focusLost

    implicitWidth: figureWidth
    minHeight: DarkUI.figureFieldHeight
    role: DarkUI.titleM
    input.inputMethodHints: Qt.ImhDigitsOnly
    input.maximumLength: 6 // more digits than any time that can be logged
    input.onActiveFocusChanged: {
        if (input.activeFocus)
            input.selectAll();
        else
            field.focusLost();
    }

    DarkText {
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.fieldPadding
        anchors.verticalCenter: parent.verticalCenter
        text: field.unit
        role: DarkUI.caption
        color: DarkUI.textTertiary
        Accessible.ignored: true
    }
}
