// The current page. On a turn the previous page slides out and fades while the new one enters from
// the other side.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Wrapped

FocusScope {
    id: stack

    required property WrappedView model
    readonly property bool turning: turn.running
    property ReviewPage current: null
    property ReviewPage before: null // the page leaving
    property string shownKey
    property list<string> seen // keys of pages that have made their entrance
    property bool passing: false // hides pages in between
    property bool outdated: false // shows the previous log until updated

    // 1 for a turn on, -1 for a turn back, 0 for a fade alone.
    property real direction: 0
    property real elapsed: 0 // ms
    property real outFrom: 0 // the leaving page's start, px
    property real outPresence: 1

    // Runs several `turns` as one visible turn.
    function pass(turns): void {
        passing = true;
        turns();
        passing = false;
        follow();
    }
    function pageOf(card: string): Component {
        switch (card) {
        case "hero":
            return hero;
        case "skills":
            return skills;
        case "persona":
            return persona;
        case "rhythm":
            return rhythm;
        case "when":
            return when;
        case "superlatives":
            return highPoints;
        case "milestones":
            return milestones;
        case "narrative":
            return narrative;
        case "notes":
            return notes;
        case "summary":
            return summary;
        default:
            return empty;
        }
    }
    function keyOf(card: string): string {
        return card + " " + model.period;
    }
    // Shows the model's page, possibly the same one with other values.
    function follow(): void {
        const card = model.isEmpty ? "" : model.card;
        if (keyOf(card) !== shownKey)
            show(card, keyOf(card));
        else if (outdated || card === "narrative")
            refresh();
        outdated = false;
    }
    function refresh(): void {
        current.animated = false;
        current.texts = model.texts;
    }
    function show(card: string, key: string): void {
        const isNew = !seen.includes(key);
        if (isNew)
            seen = seen.concat([key]);
        turn.stop();
        if (before)
            before.destroy();
        before = current;
        shownKey = key;
        current = pageOf(card).createObject(stack, {
            "model": model,
            "texts": model.texts,
            "animated": isNew
        }) as ReviewPage;
        current.focus = true;
        current.lines = announcer.linesOf(current);
        if (!before)
            return;
        // A page with the focus is read by the screen reader itself.
        announcer.say(KitText.turnedTo(model.page, model.cards.length,
                                       activeFocus ? "" : current.lines));
        before.leaving = true;
        outFrom = before.x;
        outPresence = before.opacity;
        direction = Motion.reduced ? 0 : model.pageDirection;
        elapsed = 0;
        place();
        turn.start();
    }
    function place(): void {
        const way = Motion.reduced ? elapsed / turn.to
                                   : Motion.springAt(DarkUI.springPage.stiffness,
                                                     DarkUI.springPage.damping, elapsed);
        current.x = Math.round(direction * DarkUI.pageSlide * (1 - way));
        current.opacity = Math.min(way, 1);
        before.x = Math.round(outFrom + (-direction * DarkUI.pageSlide - outFrom) * way);
        before.opacity = Math.max(outPresence * (1 - way), 0);
    }
    function arrive(): void {
        current.x = 0;
        current.opacity = 1;
        before.destroy();
        before = null;
    }

    onElapsedChanged: if (turn.running)
        place()
    Component.onCompleted: follow()

    // Pages are created on demand.
    Component {
        id: hero
        HeroCardView {}
    }
    Component {
        id: skills
        SkillsCardView {}
    }
    Component {
        id: persona
        PersonaCardView {}
    }
    Component {
        id: rhythm
        RhythmCardView {}
    }
    Component {
        id: when
        WhenCardView {}
    }
    Component {
        id: highPoints
        HighPointsCardView {}
    }
    Component {
        id: milestones
        MilestonesCardView {}
    }
    Component {
        id: narrative
        NarrativeCardView {}
    }
    Component {
        id: notes
        NotesCardView {}
    }
    Component {
        id: summary
        SummaryCardView {}
    }
    Component {
        id: empty
        EmptyCardView {}
    }

    Announcer {
        id: announcer
    }

    NumberAnimation {
        id: turn
        target: stack
        property: "elapsed"
        from: 0
        to: Motion.reduced ? DarkUI.crossFadeTime
                           : Motion.springTime(DarkUI.springPage.stiffness,
                                               DarkUI.springPage.damping)
        duration: to
        onFinished: stack.arrive()
    }

    Connections {
        target: stack.model
        function onReviewChanged(): void {
            stack.outdated = true;
        }
        // Emitted last of all changes.
        function onPageChanged(): void {
            if (!stack.passing)
                stack.follow();
        }
        // Another year. Other changes of the calendar also arrive above.
        function onRhythmChanged(): void {
            if (stack.shownKey === stack.keyOf("rhythm"))
                stack.refresh();
        }
    }
}
