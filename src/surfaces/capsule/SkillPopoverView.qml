// The editor of a skill: name, colour, or both.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Skills

DarkPopover {
    id: popover

    required property SkillEditor editor

    // Tighter layout for the colour alone.
    readonly property bool tight: !editor.hasName
    readonly property real heightOfName: 158
    readonly property real heightOfColor: 112
    readonly property real heightOfBoth: 204
    readonly property real titleTop: tight ? 10 : DarkUI.space12
    readonly property real subtitleTop: 30
    // px that further lines of the subtitle take
    readonly property real moreLines: tight ? 0 : subtitle.height - DarkUI.small.line
    readonly property real nameTop: 54 + moreLines
    readonly property real colorTop: tight ? 31 : 106 + moreLines
    readonly property real belowKicker: tight ? DarkUI.space14 : DarkUI.space16
    readonly property real bottomMargin: tight ? 9 : DarkUI.space12
    readonly property TypeRole kickerRole: TypeRole {
        size: 10
        line: 12
        weight: Font.DemiBold
        tracking: DarkUI.kicker.tracking
    }

    width: DarkUI.popoverWidth
    height: tight ? heightOfColor
                  : (editor.hasColors ? heightOfBoth : heightOfName) + moreLines
    name: title.text
    onDismissed: editor.close()
    Keys.onReturnPressed: editor.commit()
    Keys.onEnterPressed: editor.commit()

    // An opaque background hides the chip names below.
    Plate {
        anchors.fill: parent
        z: -1
        radius: popover.composited ? DarkUI.radiusWindow : 0
        color: DarkUI.windowGround
    }

    DarkText {
        id: title
        x: DarkUI.space16
        y: popover.titleTop
        text: popover.editor.adding ? qsTr("Create a skill")
              : popover.tight ? qsTr("Choose a color") : qsTr("Rename skill")
        role: DarkUI.bodyStrong
        Accessible.role: Accessible.Heading
    }

    DarkText {
        id: subtitle
        x: DarkUI.space16
        y: popover.subtitleTop
        width: parent.width - 2 * DarkUI.space16
        visible: popover.editor.hasName
        text: popover.editor.adding ? qsTr("What do you want to build time toward?")
                                    : qsTr("Use a short name you will recognize at a glance.")
        role: DarkUI.small
        color: DarkUI.textSecondary
        wrapMode: Text.Wrap
    }

    DarkKicker {
        x: DarkUI.space16
        y: popover.nameTop
        visible: popover.editor.hasName
        text: qsTr("NAME")
        role: popover.kickerRole
    }

    SkillNameField {
        x: DarkUI.space16
        y: popover.nameTop + popover.belowKicker
        width: parent.width - 2 * DarkUI.space16
        visible: popover.editor.hasName
        focus: popover.editor.hasName
        height: DarkUI.popoverFieldHeight
        padding: DarkUI.space10
        name: qsTr("Skill name")
        editor: popover.editor
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

    SkillSwatches {
        x: DarkUI.space16
        y: popover.colorTop + popover.belowKicker
        width: parent.width - 2 * DarkUI.space16
        visible: popover.editor.hasColors
        focus: !popover.editor.hasName
        editor: popover.editor
    }

    KitButton {
        kind: KitButton.Text
        x: DarkUI.space16
        anchors.verticalCenter: commit.verticalCenter
        height: DarkUI.popoverButtonHeight
        text: qsTr("Cancel")
        onClicked: popover.editor.close()
    }

    KitPressable {
        id: commit
        readonly property real fillOpacity: !enabled ? DarkUI.popoverCommitDisabledOpacity
                                            : pressed ? DarkUI.popoverCommitPressedOpacity
                                                      : DarkUI.popoverCommitOpacity

        anchors.right: parent.right
        anchors.rightMargin: DarkUI.space16
        anchors.bottom: parent.bottom
        anchors.bottomMargin: popover.bottomMargin
        implicitWidth: words.implicitWidth + 2 * DarkUI.space14
        implicitHeight: DarkUI.popoverButtonHeight
        enabled: popover.editor.canCommit
        name: popover.editor.adding ? qsTr("Create skill") : qsTr("Save")
        onClicked: popover.editor.commit()

        Plate {
            id: ground
            anchors.fill: parent
            radius: DarkUI.radiusSmall
            color: Tint.alpha(DarkUI.accent, commit.fillOpacity)
        }

        DarkText {
            id: words
            anchors.centerIn: parent
            text: commit.name
            role: DarkUI.bodyStrong
            color: commit.enabled ? DarkUI.textPrimary : DarkUI.textDisabled
            Accessible.ignored: true
        }

        FocusRing {
            shown: commit.ringed
            controlRadius: ground.radius
        }
    }
}
