// The welcome: picture or task, text, buttons.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

FocusScope {
    id: page

    required property WelcomeView model
    readonly property real inner: width - 2 * WelcomeTokens.margin

    // Focuses the main control of a step.
    function takeKeyboard(): void {
        if (page.model.step === 0)
            pick.input.forceActiveFocus(Qt.OtherFocusReason);
        else
            foot.takeKeyboard();
    }

    focus: true
    implicitWidth: WelcomeTokens.width
    implicitHeight: WelcomeTokens.height
    Accessible.role: Accessible.Pane
    Accessible.name: page.model.title

    Component.onCompleted: takeKeyboard()

    Announcer {
        id: announcer
    }

    Connections {
        target: page.model
        function onStepChanged(): void {
            page.takeKeyboard();
            announcer.say(page.model.spoken);
        }
    }

    WelcomeStage {
        id: stage
        x: WelcomeTokens.stageLeft
        width: page.width - 2 * x
        model: page.model
    }

    WelcomeWords {
        id: words
        x: WelcomeTokens.margin
        y: stage.height + WelcomeTokens.wordsTop
        width: page.inner
        model: page.model
    }

    PickField {
        id: pick
        x: WelcomeTokens.margin
        y: words.y + words.height + DarkUI.space24 + DarkUI.space2
        width: page.inner
        visible: page.model.step === 0
        model: page.model
    }

    WelcomeFoot {
        id: foot
        x: WelcomeTokens.margin
        y: page.height - WelcomeTokens.footBottom - height
        width: page.inner
        model: page.model
    }
}
