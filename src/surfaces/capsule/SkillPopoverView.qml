// The editor of one skill: its name, its colour, or both for a new one.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Capsule
import Vantle.Kit

DarkPopover {
    id: popover

    required property SkillPopoverEditor editor

    // Recolouring alone is set tighter.
    readonly property bool tight: !editor.hasName
    readonly property real titleTop: tight ? 10 : DarkUI.space12
    readonly property real subtitleTop: 30
    readonly property real nameTop: 54
    readonly property real colorTop: tight ? 31 : 106
    readonly property real belowKicker: tight ? DarkUI.space14 : DarkUI.space16
    readonly property real bottomMargin: tight ? 9 : DarkUI.space12
    readonly property TypeRole kickerRole: TypeRole {
        size: 10
        line: 12
        weight: Font.DemiBold
        tracking: DarkUI.kicker.tracking
    }

    width: DarkUI.popoverWidth
    height: editor.height
    name: editor.title
    onDismissed: editor.cancel()
    Keys.onReturnPressed: editor.commit()
    Keys.onEnterPressed: editor.commit()

    // The names of the chips below would show through.
    Rectangle {
        anchors.fill: parent
        z: -1
        radius: popover.composited ? DarkUI.radiusWindow : 0
        color: DarkUI.windowGround
    }

    DarkText {
        x: DarkUI.space16
        y: popover.titleTop
        text: popover.editor.title
        role: DarkUI.bodyStrong
        Accessible.role: Accessible.Heading
    }

    DarkText {
        x: DarkUI.space16
        y: popover.subtitleTop
        text: popover.editor.subtitle
        role: DarkUI.small
        color: DarkUI.textSecondary
    }

    DarkKicker {
        x: DarkUI.space16
        y: popover.nameTop
        visible: popover.editor.hasName
        text: qsTr("NAME")
        role: popover.kickerRole
    }

    DarkTextField {
        id: field
        x: DarkUI.space16
        y: popover.nameTop + popover.belowKicker
        width: parent.width - 2 * DarkUI.space16
        visible: popover.editor.hasName
        focus: popover.editor.hasName
        height: DarkUI.popoverFieldHeight
        padding: DarkUI.space10
        limit: popover.editor.maxNameLength
        name: qsTr("Skill name")
        placeholder: qsTr("e.g. Writing")
        text: popover.editor.name
        onTextChanged: popover.editor.edit(text)
        onAccepted: popover.editor.commit()
        Component.onCompleted: selectAll()
    }

    DarkKicker {
        x: DarkUI.space16
        y: popover.colorTop
        visible: popover.editor.hasColors
        text: qsTr("COLOR")
        role: popover.kickerRole
    }

    SwatchRow {
        x: DarkUI.space16
        y: popover.colorTop + popover.belowKicker
        width: parent.width - 2 * DarkUI.space16
        visible: popover.editor.hasColors
        focus: !popover.editor.hasName
        colors: popover.editor.palette
        names: popover.editor.colorNames
        currentIndex: popover.editor.selectedIndex
        onActivated: index => popover.editor.select(index)
    }

    KitButton {
        kind: KitButton.Text
        x: DarkUI.space16
        anchors.verticalCenter: commit.verticalCenter
        height: DarkUI.popoverButtonHeight
        text: qsTr("Cancel")
        onClicked: popover.editor.cancel()
    }

    PopoverCommitButton {
        id: commit
        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space16
        anchors.bottom: parent.bottom
        anchors.bottomMargin: popover.bottomMargin
        enabled: popover.editor.canCommit
        text: popover.editor.commitTitle
        onClicked: popover.editor.commit()
    }
}
