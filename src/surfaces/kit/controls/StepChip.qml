// A small plus or minus button. The large form is for forms.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: chip

    required property string label // "+" or "−"
    property bool large: false
    property bool exhausted: false // at the limit; it keeps the focus
    readonly property bool plus: label === "+"
    signal action

    implicitWidth: large ? DarkUI.formStepperSize : DarkUI.stepperSize
    implicitHeight: implicitWidth
    name: plus ? qsTr("More") : qsTr("Less")
    onClicked: if (!exhausted) action()

    Plate {
        id: ground
        anchors.fill: parent
        radius: chip.large ? DarkUI.radiusBanner : DarkUI.radiusSmall
        color: chip.pressed && chip.enabled ? DarkUI.fillPressed
             : chip.hovered ? DarkUI.fillHover : chip.large ? DarkUI.cardFill : DarkUI.stepperFill
        edge: chip.large ? DarkUI.hairline : DarkUI.clear

        Behavior on color {
            ColorAnimation {
                duration: chip.stateTime
                easing.type: Easing.OutCubic
            }
        }
    }

    KitIcon {
        anchors.centerIn: parent
        width: chip.large ? DarkUI.iconSize : DarkUI.iconSmall
        height: width
        name: chip.plus ? "plus" : "minus"
        color: chip.enabled && !chip.exhausted ? DarkUI.textPrimary : DarkUI.iconDisabled
    }

    FocusRing {
        shown: chip.ringed
        controlRadius: ground.radius
    }
}
