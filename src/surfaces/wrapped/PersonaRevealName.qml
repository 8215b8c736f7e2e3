// The name of a persona, revealed letter by letter, with a burst at the end. Stops once `torn`,
// when its page leaves.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Wrapped

Item {
    id: reveal

    required property string name
    property color startColor
    property color endColor
    property list<color> burstColors
    property int startDelay: 0 // ms
    property bool animated: false
    property bool torn: false
    readonly property bool reveals: animated && !Motion.reduced
    property int shownCharacters: 0
    readonly property bool typingDone: !reveals || shownCharacters >= KitText.count(name)

    implicitWidth: letters.implicitWidth
    implicitHeight: letters.implicitHeight

    Accessible.role: Accessible.Heading
    Accessible.name: name

    GradientText {
        id: letters
        width: reveal.width
        text: reveal.name
        shownCharacters: reveal.typingDone ? -1 : reveal.shownCharacters
        startColor: reveal.startColor
        endColor: reveal.endColor
        font: DarkUI.nameReview.font
        lineHeight: DarkUI.nameReview.line
    }

    DotBurst {
        id: burst
        width: letters.implicitWidth
        height: reveal.height
        colors: reveal.burstColors
    }

    SequentialAnimation {
        running: reveal.reveals && !reveal.torn

        PauseAnimation {
            duration: reveal.startDelay
        }
        ScriptAction {
            script: typing.start()
        }
    }

    Timer {
        id: typing
        interval: DarkUI.typingStep
        repeat: true
        onTriggered: {
            reveal.shownCharacters += 1;
            if (!reveal.typingDone)
                return;
            stop();
            burst.play();
        }
    }

    onTornChanged: if (torn)
        typing.stop()
}
