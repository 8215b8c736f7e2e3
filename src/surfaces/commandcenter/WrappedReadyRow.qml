// The row that opens last week's review while it is due.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

KitPressable {
    id: row

    implicitHeight: DarkUI.space14 + DarkUI.navRowHeight
    name: qsTr("Your Wrapped is ready. Opens last week's recap.")
    Accessible.description: qsTr("Opens last week's Wrapped")

    Plate {
        id: ground
        y: DarkUI.space14
        width: parent.width
        height: DarkUI.navRowHeight
        radius: DarkUI.radiusBanner
        color: Tint.alpha(DarkUI.accent, row.pressed ? DarkUI.tintFillPressedOpacity
                                       : row.hovered ? DarkUI.tintFillHoverOpacity
                                       : DarkUI.wrappedFillOpacity)
        edge: Tint.alpha(DarkUI.accent, DarkUI.wrappedEdgeOpacity)

        DarkText {
            anchors.left: parent.left
            anchors.leftMargin: DarkUI.space12
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Your Wrapped is ready")
            role: DarkUI.bodyMedium
            Accessible.ignored: true
        }
        DarkText {
            anchors.right: parent.right
            anchors.rightMargin: DarkUI.space12
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("View it ›")
            role: DarkUI.captionStrong
            color: DarkUI.accentTextOnTint
            Accessible.ignored: true
        }

        FocusRing {
            shown: row.ringed
            controlRadius: ground.radius
        }
    }
}
