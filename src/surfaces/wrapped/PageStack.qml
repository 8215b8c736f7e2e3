// Shows the page that the review is at. At a turn the page before slides out and fades while the
// new one comes in from the other side.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Wrapped

FocusScope {
    id: stack

    required property WrappedView model
    readonly property bool turning: turn.running
    property ReviewPage current: null
    property ReviewPage before: null // on its way out
    property string shownKey
    property list<string> seen // keys of pages whose parts have come in
    property bool passing: false // the pages on the way are not shown
    property bool outdated: false // another log, so that the page shows what was

    // Of the turn: 1 for a page on, -1 for a page back; 0 with nothing but fading.
    property real direction: 0
    property real elapsed: 0 // ms
    property real outFrom: 0 // where the page before stood, px
    property real outPresence: 1

    // Goes on to where `turns` leads, by one turn for the eye.
    function pass(turns): void {
        passing = true;
        turns();
        passing = false;
        follow();
    }
    function fileOf(card: string): string {
        switch (card) {
        case "hero":
            return "HeroCardView.qml";
        case "skills":
            return "SkillsCardView.qml";
        case "persona":
            return "PersonaCardView.qml";
        case "rhythm":
            return "RhythmCardView.qml";
        case "when":
            return "WhenCardView.qml";
        case "superlatives":
            return "HighPointsCardView.qml";
        case "milestones":
            return "MilestonesCardView.qml";
        case "narrative":
            return "NarrativeCardView.qml";
        case "notes":
            return "NotesCardView.qml";
        case "summary":
            return "SummaryCardView.qml";
        default:
            return "EmptyCardView.qml";
        }
    }
    // What a page shows, as it is at this moment.
    function valuesOf(card: string) {
        switch (card) {
        case "hero":
            return { "content": model.hero };
        case "skills":
            return { "content": model.skills };
        case "persona":
            return { "content": model.persona };
        case "rhythm":
            return { "content": model.rhythm };
        case "when":
            return { "content": model.when };
        case "superlatives":
            return { "content": model.highPoints };
        case "milestones":
            return { "content": model.milestones, "dotColors": model.poster.dotColors };
        case "narrative":
            return { "content": model.narrative };
        case "notes":
            return { "content": model.notes };
        case "summary":
            return { "content": model.summary, "poster": model.poster };
        default:
            return { "title": model.emptyTitle, "words": model.emptyText };
        }
    }
    function made(card: string, animated: bool): ReviewPage {
        const component = Qt.createComponent(fileOf(card));
        const values = valuesOf(card);
        values.model = model;
        values.animated = animated;
        return component.createObject(stack, values) as ReviewPage;
    }
    function keyOf(card: string): string {
        return card + " " + model.period;
    }
    // The review is at a page, which may be the one that is shown, with other values.
    function follow(): void {
        const card = model.isEmpty ? "" : model.card;
        if (keyOf(card) !== shownKey)
            show(card, keyOf(card));
        else if (outdated || card === "narrative")
            refresh(card);
        outdated = false;
    }
    function refresh(card: string): void {
        const values = valuesOf(card);
        current.animated = false;
        for (const name in values)
            current[name] = values[name];
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
        current = made(card, isNew);
        current.focus = true;
        current.lines = announcer.linesOf(current);
        if (!before)
            return;
        // A page that the keyboard is on is read out as it gets the focus.
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
        // Told last of all that has changed.
        function onPageChanged(): void {
            if (!stack.passing)
                stack.follow();
        }
        // Another year. All else that changes the calendar is told of once more above.
        function onRhythmChanged(): void {
            if (stack.shownKey === stack.keyOf("rhythm"))
                stack.refresh("rhythm");
        }
    }
}
