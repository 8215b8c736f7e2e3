// A fact: title at the left, value at the right.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

Plate {
    id: box

    required property factBox fact
    readonly property real boxHeight: 46

    implicitHeight: boxHeight
    radius: DarkUI.radiusCard
    color: DarkUI.cardFill
    edge: DarkUI.hairline
    Accessible.role: Accessible.StaticText
    Accessible.name: fact.title + ", " + (fact.detail === "" ? "" : fact.detail + ", ") + fact.value

    DarkKicker {
        x: DarkUI.space16
        anchors.verticalCenter: parent.verticalCenter
        text: box.fact.title
        Accessible.ignored: true
    }

    DarkText {
        anchors.right: value.left
        anchors.rightMargin: DarkUI.space12
        anchors.baseline: value.baseline
        text: box.fact.detail
        role: DarkUI.caption
        color: DarkUI.textTertiary
        Accessible.ignored: true
    }

    DarkText {
        id: value
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space16
        anchors.verticalCenter: parent.verticalCenter
        text: box.fact.value
        role: DarkUI.cardTitle
        Accessible.ignored: true
    }
}
