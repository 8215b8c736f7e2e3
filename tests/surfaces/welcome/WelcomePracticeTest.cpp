// The practice session in the middle of the welcome.
#include "surfaces/welcome/WelcomeWorld.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace vantle {
namespace {

using namespace welcometext;
using State = TrackerCore::State;

class WelcomePracticeTest : public testing::Test, protected tests::WelcomeWorld {
protected:
    /// The welcome again, for a user who has been through it, with a session in the log.
    void replay() {
        view.reset();
        kill();
        disk.setContent(file("sessions.jsonl"), "");
        launch();
        model->markWelcomeDone();
        press();
        time.advance(60);
        press();
        closeCard();
        isInFront = true;
        open();
    }
    void pressButton() {
        view->pressPrimary();
        settle();
    }
};

TEST_F(WelcomePracticeTest, PressAdvancesAndTheSecondOneWaitsForTheCard) {
    open();
    beginPractice();
    EXPECT_EQ(view->step(), Stop);
    EXPECT_TRUE(view->isPracticeRunning());
    time.advance(24);
    EXPECT_EQ(view->practiceWords(), (QStringList{text("24"), text("sec")}));
    EXPECT_EQ(view->practiceSkill(), text("BUILD"));
    press();
    EXPECT_EQ(view->step(), Stop);
    EXPECT_FALSE(view->isPracticeRunning());
    EXPECT_TRUE(view->isWaitingForStopCard());
    EXPECT_FALSE(view->canPressPrimary());
    closeCard();
    EXPECT_EQ(view->step(), Success);
    EXPECT_FALSE(view->isWaitingForStopCard());
    EXPECT_TRUE(view->canPressPrimary());
}

TEST_F(WelcomePracticeTest, LeavesNothingInTheLogAndItsCardInvitesToTheNote) {
    open();
    beginPractice();
    time.advance(60);
    press();
    EXPECT_TRUE(told.summary->spotlightNote);
    told.closeSummary(text("a first note"));
    Q_EMIT notifications.HFStopSummaryResolved();
    EXPECT_TRUE(log().empty());
    EXPECT_FALSE(hasMarker());
    EXPECT_EQ(note(), QString());
}

TEST_F(WelcomePracticeTest, WindowMakesWayForTheCeremonyAndComesBack) {
    open();
    beginPractice();
    EXPECT_FALSE(isInSight);
    time.advance(3.5);
    EXPECT_FALSE(isInSight);
    time.advance(0.2);
    EXPECT_TRUE(isInSight);
    EXPECT_EQ(broughtForward, 1);
}

TEST_F(WelcomePracticeTest, WindowStaysUpWithoutACeremony) {
    settings::rippleDisabled.write(preferences, true);
    open();
    beginPractice();
    EXPECT_EQ(view->step(), Stop);
    time.advance(5);
    EXPECT_TRUE(isInSight);
    EXPECT_EQ(broughtForward, 0);
}

TEST_F(WelcomePracticeTest, WindowStaysUpUnderReducedMotion) {
    reducedMotion.isOn = true;
    open();
    beginPractice();
    EXPECT_EQ(view->step(), Stop);
    time.advance(5);
    EXPECT_TRUE(isInSight);
    EXPECT_EQ(broughtForward, 0);
}

TEST_F(WelcomePracticeTest, ComesForwardWithTheCardAndNotOnceMoreWhenTheCeremonyIsOver) {
    open();
    beginPractice();
    time.advance(1);
    endPractice();
    EXPECT_TRUE(isInSight);
    EXPECT_EQ(broughtForward, 1);
    time.advance(10);
    EXPECT_EQ(broughtForward, 1) << "it would take the keyboard from whoever has it by then";
}

TEST_F(WelcomePracticeTest, SessionStartedByAnyOtherRouteAdvancesInTheSameWay) {
    open();
    walkTo(Press);
    told.idleStart(); // a click on the capsule
    settle();
    EXPECT_EQ(view->step(), Stop);
    EXPECT_FALSE(isInSight);
    open();
    model->discardPracticeSession();
    walkTo(Press);
    model->startWithBackfill(10); // the panel
    settle();
    EXPECT_EQ(view->step(), Stop);
}

TEST_F(WelcomePracticeTest, ClosingTheWindowInThePracticeDiscardsItAndMarksTheFlowDone) {
    open();
    beginPractice();
    time.advance(1);
    told.calls.clear();
    view->finish(); // what a window that closes calls
    EXPECT_EQ(model->tracker().state(), State::Idle);
    EXPECT_TRUE(log().empty());
    EXPECT_FALSE(model->needsWelcome());
    EXPECT_FALSE(told.has(text("summary")));
    EXPECT_TRUE(told.has(text("notch idle building flash 0")));
    view.reset();
    time.advance(10);
    EXPECT_EQ(broughtForward, 0) << "a window that is closed stays closed";
}

TEST_F(WelcomePracticeTest, ClosedWhileTheCardIsUpItStaysClosedWhenTheCardGoes) {
    open();
    beginPractice();
    time.advance(1);
    press();
    view->finish();
    closeCard();
    time.advance(10);
    EXPECT_EQ(broughtForward, 0);
    EXPECT_TRUE(log().empty());
}

TEST_F(WelcomePracticeTest, QuittingInThePracticeLogsNothingAndTheWelcomeComesAgain) {
    open();
    beginPractice();
    time.advance(30);
    model->prepareForTermination();
    settle();
    EXPECT_TRUE(log().empty());
    EXPECT_TRUE(model->needsWelcome());
}

TEST_F(WelcomePracticeTest, ChangeOfModeInThePracticeIsNoEndOfItAndLeavesNothingEither) {
    open();
    beginPractice();
    time.advance(30);
    model->selectSkill(text("product_design"), AppModel::SkillSelectionOrigin::Human);
    settle();
    EXPECT_TRUE(view->isPracticeRunning());
    EXPECT_FALSE(view->isWaitingForStopCard());
    time.advance(10);
    EXPECT_EQ(view->practiceSkill(), text("DESIGN"));
    endPractice();
    EXPECT_EQ(view->step(), Success);
    EXPECT_TRUE(log().empty());
}

TEST_F(WelcomePracticeTest, PauseAndResumeAreNoNews) {
    open();
    beginPractice();
    time.advance(20);
    model->tracker().pause(time.now());
    settle();
    EXPECT_TRUE(view->isPracticeRunning());
    model->tracker().resume();
    settle();
    EXPECT_EQ(view->step(), Stop);
    EXPECT_FALSE(view->isWaitingForStopCard());
}

TEST_F(WelcomePracticeTest, AnotherPressBeforeTheCardIsGonePractisesOnceMore) {
    open();
    beginPractice();
    time.advance(10);
    press();
    press();
    EXPECT_TRUE(view->isPracticeRunning());
    closeCard(); // of the first
    EXPECT_EQ(view->step(), Stop);
    endPractice();
    EXPECT_EQ(view->step(), Success);
    EXPECT_TRUE(log().empty());
}

TEST_F(WelcomePracticeTest, StopThatFailsLeavesThePracticeRunning) {
    open();
    beginPractice();
    time.advance(10);
    breakWrites(text("sessions.jsonl"), true);
    press();
    EXPECT_EQ(view->step(), Stop);
    EXPECT_TRUE(view->isPracticeRunning());
    breakWrites(text("sessions.jsonl"), false);
    endPractice();
    EXPECT_EQ(view->step(), Success);
}

TEST_F(WelcomePracticeTest, CardOfAnotherSessionMovesNothing) {
    open();
    walkTo(Modes);
    Q_EMIT notifications.HFStopSummaryResolved();
    EXPECT_EQ(view->step(), Modes);
}

TEST_F(WelcomePracticeTest, SessionThatRunsBeforeItIsAskedForWillDo) {
    open();
    press();
    EXPECT_EQ(view->step(), Pick);
    walkTo(Stop);
    EXPECT_TRUE(view->isPracticeRunning());
    EXPECT_TRUE(isInSight) << "its ceremony is long over";
    endPractice();
    EXPECT_EQ(view->step(), Success);
    EXPECT_TRUE(log().empty());
}

TEST_F(WelcomePracticeTest, PracticeOfAReplayBeginsByItsButtonAndLeavesTheLogUntouched) {
    replay();
    walkTo(Press);
    pressButton();
    EXPECT_EQ(view->step(), Stop);
    EXPECT_TRUE(view->body().contains(text("This one is practice")));
    time.advance(30);
    model->selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    time.advance(30);
    press();
    EXPECT_TRUE(told.summary->spotlightNote);
    told.closeSummary(text("a note"));
    Q_EMIT notifications.HFStopSummaryResolved();
    EXPECT_EQ(view->step(), Success);
    EXPECT_EQ(log().size(), 1U);
    EXPECT_EQ(note(), QString());
    view->finish();
    press();
    time.advance(60);
    press();
    EXPECT_EQ(log().size(), 2U) << "the next one is real again";
}

TEST_F(WelcomePracticeTest, SessionThatBeginsInAnyOtherWayDuringAReplayIsWorkAndStays) {
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"shortcut", [this] { press(); }},
        {"capsule", [this] { told.idleStart(); }},
        {"a mode in the capsule", [this] { told.idlePick(text("marketing")); }},
        {"panel", [this] { model->startWithBackfill(0); }},
        {"bus", [this] { model->toggleVantle(); }},
        {"auto mode", [this] { autoSkill->onAutoStart(text("marketing")); }}};
    for (const auto& [way, start] : ways) {
        for (const bool inFront : {true, false}) {
            replay();
            walkTo(Press);
            isInFront = inFront;
            const auto before = log().size();
            start();
            settle();
            time.advance(3 * 3600);
            press();
            EXPECT_EQ(log().size(), before + 1) << way;
            EXPECT_EQ(log().back().activeSeconds, 3 * 3600) << way;
            EXPECT_FALSE(told.summary->spotlightNote) << way;
            closeCard();
        }
    }
}

TEST_F(WelcomePracticeTest, WorkBegunDuringAReplayIsShownAndKeptWhenTheWindowCloses) {
    replay();
    walkTo(Press);
    press();
    EXPECT_EQ(view->step(), Stop);
    EXPECT_EQ(view->body(), text("The clock is running on your work. Press ⌘⌥B again to stop."));
    time.advance(60);
    view->finish();
    EXPECT_EQ(model->tracker().state(), State::Running);
    press();
    EXPECT_EQ(log().size(), 2U);
}

TEST_F(WelcomePracticeTest, ReplayThatIsLeftBehindOtherWindowsStaysThere) {
    replay();
    walkTo(Press);
    isInFront = false;
    press();
    EXPECT_EQ(view->step(), Press);
    EXPECT_TRUE(isInSight);
    time.advance(3600);
    endPractice();
    EXPECT_EQ(broughtForward, 0);
    EXPECT_EQ(log().size(), 2U);
}

TEST_F(WelcomePracticeTest, EndOfWorkBringsNoReplayForward) {
    replay();
    walkTo(Press);
    press();
    time.advance(3600);
    broughtForward = 0;
    endPractice();
    EXPECT_EQ(view->step(), Success);
    EXPECT_EQ(view->body(), text("That was the whole ritual."));
    EXPECT_EQ(broughtForward, 0);
}

TEST_F(WelcomePracticeTest, ButtonOfAReplayLeavesTheRunningWorkAlone) {
    replay();
    press();
    time.advance(60);
    walkTo(Press);
    EXPECT_EQ(view->primaryText(), text("Continue"));
    EXPECT_EQ(view->asideText(), QString());
    pressButton();
    EXPECT_EQ(view->step(), Success);
    EXPECT_EQ(model->tracker().state(), State::Running);
    view->finish();
    EXPECT_EQ(model->tracker().state(), State::Running);
    press();
    EXPECT_EQ(log().size(), 2U);
}

TEST_F(WelcomePracticeTest, ShownAgainInTheMiddleOfWorkThatWorkIsKept) {
    replay();
    model->selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    press();
    time.advance(60);
    open();
    walkTo(Press);
    EXPECT_EQ(model->tracker().currentSkillId(), text("marketing"));
    EXPECT_EQ(log().size(), 1U) << "not split";
    press(); // ends the work
    EXPECT_EQ(view->step(), Press);
    EXPECT_EQ(view->primaryText(), text("Enter Vantle"));
    EXPECT_EQ(log().size(), 2U);
    pressButton();
    EXPECT_EQ(view->step(), Stop);
    endPractice();
    EXPECT_EQ(log().size(), 2U);
}

} // namespace
} // namespace vantle
