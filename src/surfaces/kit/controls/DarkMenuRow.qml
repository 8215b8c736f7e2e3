// A menu row. Hovering focuses it, so that only one row is ever highlighted.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: row

    required property string text
    property bool danger: false
    property bool checkable: false
    property bool checked: false
    signal triggered

    implicitWidth: label.x + label.implicitWidth + DarkUI.space12
    implicitHeight: DarkUI.menuRowHeight
    name: text
    ringed: false
    activeFocusOnTab: false
    Accessible.role: Accessible.MenuItem
    Accessible.checkable: checkable
    Accessible.checked: checked
    onClicked: triggered()
    onHoveredChanged: if (hovered) forceActiveFocus(Qt.MouseFocusReason)

    Plate {
        anchors.fill: parent
        visible: row.activeFocus || row.hovered
        radius: DarkUI.radiusMenuRow
        color: row.pressed ? DarkUI.fillPressed : DarkUI.fillHover
    }

    KitIcon {
        x: DarkUI.space8
        anchors.verticalCenter: parent.verticalCenter
        visible: row.checked
        width: DarkUI.iconSmall
        height: DarkUI.iconSmall
        name: "check"
        color: DarkUI.textPrimary
    }

    DarkText {
        id: label
        x: row.checkable ? DarkUI.space24 + DarkUI.space2 : DarkUI.space10
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, row.width - x - DarkUI.space12)
        elide: Text.ElideRight
        text: row.text
        role: DarkUI.captionMedium
        color: !row.enabled ? DarkUI.textDisabled
               : row.danger ? DarkUI.dangerTextOnFill : DarkUI.textPrimary
        Accessible.ignored: true
    }
}
