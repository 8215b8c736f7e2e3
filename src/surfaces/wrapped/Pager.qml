// The pager: back, on, and the position.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Wrapped

Item {
    id: pager

    required property WrappedView model
    readonly property string place: dots.Accessible.name
    signal dropped // the focused button became disabled

    // A disabled button drops the focus without passing it on.
    function keepFocus(button: Item): void {
        if (!button.enabled)
            pager.dropped();
    }

    implicitHeight: DarkUI.pagerButtonSize

    component Chevron: DarkIconButton {
        implicitWidth: DarkUI.pagerButtonSize
        implicitHeight: DarkUI.pagerButtonSize
        radius: DarkUI.pagerButtonSize / 2
        fill: enabled ? DarkUI.stepperFill : DarkUI.rowHover
        fillHover: DarkUI.fillPressed
        fillPressed: DarkUI.segmentFill
        iconColor: DarkUI.textPrimary
    }

    Chevron {
        id: back
        name: qsTr("Previous page")
        Accessible.description: pager.place
        icon: "chevron-left"
        enabled: pager.model.canTurnBack
        onClicked: {
            pager.model.turnBack();
            pager.keepFocus(back);
        }
    }

    PageDots {
        id: dots
        anchors.centerIn: parent
        count: pager.model.cards.length
        current: pager.model.page
    }

    Chevron {
        anchors.right: parent.right
        id: on
        name: qsTr("Next page")
        Accessible.description: pager.place
        icon: "chevron-right"
        enabled: pager.model.canTurnOn
        onClicked: {
            pager.model.turnOn();
            pager.keepFocus(on);
        }
    }
}
