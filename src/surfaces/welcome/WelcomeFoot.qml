// The footer: progress and buttons.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

FocusScope {
    id: foot

    required property WelcomeView model

    function takeKeyboard(): void {
        primary.forceActiveFocus(Qt.OtherFocusReason);
    }

    implicitHeight: DarkUI.formButtonHeight

    StepDots {
        anchors.verticalCenter: parent.verticalCenter
        count: foot.model.stepCount
        current: foot.model.step
    }

    DarkText {
        anchors.right: primary.left
        anchors.rightMargin: DarkUI.space18
        anchors.verticalCenter: parent.verticalCenter
        text: foot.model.asideText
        role: DarkUI.caption
        color: DarkUI.textTertiary
    }

    KitButton {
        kind: KitButton.Text
        anchors.right: primary.left
        anchors.rightMargin: DarkUI.space18
        anchors.verticalCenter: parent.verticalCenter
        visible: text !== ""
        text: foot.model.quietText
        onClicked: foot.model.pressQuiet()
    }

    DarkPrimaryButton {
        id: primary
        anchors.right: parent.right
        implicitHeight: DarkUI.formButtonHeight
        padding: DarkUI.formButtonPadding
        focus: true
        enabled: foot.model.canPressPrimary
        text: foot.model.primaryText
        Accessible.description: KitText.spoken(foot.model.spoken)
        onClicked: foot.model.pressPrimary()
    }
}
