// Back and on, and which of the pages it is.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

Item {
    id: pager

    required property WrappedView model

    implicitHeight: DarkUI.pagerButton

    component Chevron: DarkIconButton {
        implicitWidth: DarkUI.pagerButton
        implicitHeight: DarkUI.pagerButton
        radius: DarkUI.pagerButton / 2
        fill: enabled ? DarkUI.stepper : DarkUI.rowHover
        fillHover: DarkUI.fillPressed
        fillPressed: DarkUI.segment
        iconColor: DarkUI.t1
    }

    Chevron {
        name: qsTr("Previous page")
        icon: "chevron-left"
        enabled: pager.model.canTurnBack
        onClicked: pager.model.turnBack()
    }

    PageDots {
        anchors.centerIn: parent
        count: pager.model.cards.length
        current: pager.model.page
    }

    Chevron {
        anchors.right: parent.right
        name: qsTr("Next page")
        icon: "chevron-right"
        enabled: pager.model.canTurnOn
        onClicked: pager.model.turnOn()
    }
}
