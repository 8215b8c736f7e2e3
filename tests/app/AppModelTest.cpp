#include "app/ModelWorld.h"
#include "support/Text.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

#include <functional>

namespace vantle::tests {
namespace {

using State = TrackerCore::State;

class AppModelTest : public testing::Test {
protected:
    AppModel& launched() { return world.launch(); }

    ModelWorld world;
};

TEST_F(AppModelTest, APressStartsASessionAndTheNextOnePutsItIntoTheLog) {
    AppModel& model = launched();
    world.press();
    EXPECT_EQ(model.tracker().state(), State::Running);
    EXPECT_TRUE(world.hasMarker());
    world.time.advance(120.0);
    world.press();
    EXPECT_EQ(model.tracker().state(), State::Idle);
    EXPECT_FALSE(world.hasMarker());
    ASSERT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.log().front().activeSeconds, 120);
    EXPECT_EQ(world.log().front().skillId, text("building"));
}

TEST_F(AppModelTest, LaunchTakesTheLastUsedSkillIfItStillExists) {
    world.preferences.setString(text("skill.lastUsed"), text("marketing"));
    EXPECT_EQ(launched().selectedSkillId(), text("marketing"));
}

TEST_F(AppModelTest, LaunchFallsBackToTheFirstSkillForAStaleId) {
    world.preferences.setString(text("skill.lastUsed"), text("gone"));
    EXPECT_EQ(launched().selectedSkillId(), text("building"));
}

TEST_F(AppModelTest, AStopOnAFailingDiskLeavesTheSessionOpenAndShowsTheStorageText) {
    AppModel& model = launched();
    world.press();
    world.time.advance(10.0);
    world.breakWrites(text("sessions.jsonl"), true);
    model.toggleVantle();
    EXPECT_EQ(model.tracker().state(), State::Running);
    EXPECT_TRUE(world.note().startsWith(text("Couldn’t save your hours. Check available disk space "
                                             "and folder permissions, then try again. (")));
    EXPECT_TRUE(world.hasMarker());
    world.breakWrites(text("sessions.jsonl"), false);
    model.toggleVantle();
    EXPECT_EQ(model.tracker().state(), State::Idle);
    EXPECT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.note(), QString());
}

TEST_F(AppModelTest, BackfillIsRefusedWithoutEvidenceAndSaysSo) {
    AppModel& model = launched();
    model.startWithBackfill(10);
    EXPECT_EQ(model.tracker().state(), State::Running);
    EXPECT_EQ(world.note(), text("Started now · couldn't confirm 10 min of activity"));
    EXPECT_EQ(model.tracker().startedAt(), world.time.now());
    model.startWithBackfill(5);
    EXPECT_EQ(world.note(), text("Backfill skipped · couldn't confirm this Mac was active"));
}

TEST_F(AppModelTest, BackfillIsGrantedOnEvidence) {
    AppModel& model = launched();
    for (int i = 0; i < 120; ++i) {
        world.idleSource.touch();
        world.time.advance(10.0);
    }
    model.startWithBackfill(10);
    EXPECT_EQ(world.note(), QString());
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 600);
    model.startWithBackfill(5);
    EXPECT_EQ(world.note(), text("Moved the session start back 5 min"));
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 900);
}

TEST_F(AppModelTest, QuickLogClampsItsMinutes) {
    AppModel& model = launched();
    EXPECT_TRUE(model.quickLog(text("building"), 0, QString()));
    EXPECT_EQ(world.note(), text("Logged 1 min manually (stays on this Mac)"));
    EXPECT_TRUE(model.quickLog(text("building"), 2000, QString()));
    EXPECT_EQ(world.note(), text("Logged 960 min manually (stays on this Mac)"));
    EXPECT_EQ(world.log()[1].activeSeconds + world.log()[0].activeSeconds, 60 + 57600);
}

TEST_F(AppModelTest, NoteOfACommandGoesWithTheNextCommand) {
    AppModel& model = launched();
    const auto expectGone = [&](const char* command, const std::function<void()>& run) {
        model.quickLog(text("building"), 5, {});
        ASSERT_FALSE(world.note().isEmpty());
        run();
        EXPECT_EQ(world.note(), QString()) << command;
    };
    expectGone("select",
               [&] { model.selectSkill(text("building"), AppModel::SkillSelectionOrigin::Human); });
    expectGone("discard", [&] { model.discardPracticeSession(); });
    expectGone("start", [&] { model.startWithBackfill(0); });
}

TEST_F(AppModelTest, EachNoteIsTold) {
    AppModel& model = launched();
    int told = 0;
    QObject::connect(&model, &AppModel::lastActionNoteChanged, [&] { ++told; });
    model.quickLog(text("building"), 5, {});
    EXPECT_EQ(told, 1);
}

TEST_F(AppModelTest, QuickLogReportsFailure) {
    AppModel& model = launched();
    EXPECT_FALSE(model.quickLog(text("gone"), 10, QString()));
    EXPECT_EQ(world.note(), text("Couldn’t log that time"));
}

TEST_F(AppModelTest, AnAbsencePausesBackdatedAndInputResumes) {
    AppModel& model = launched();
    world.press();
    world.idleSource.touch();
    world.time.advance(400.0);
    EXPECT_EQ(model.tracker().state(), State::Paused);
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 0);
    world.idleSource.touch();
    world.time.advance(10.0);
    EXPECT_EQ(model.tracker().state(), State::Running);
    EXPECT_EQ(model.tracker().welcomeBack(), text("welcome back, paused 7m"));
}

TEST_F(AppModelTest, SleepingScreensPauseAtOnce) {
    AppModel& model = launched();
    world.press();
    world.time.advance(30.0);
    world.screens.sleep();
    EXPECT_EQ(model.tracker().state(), State::Paused);
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 30);
}

TEST_F(AppModelTest, AFullShowPlaysAndTheCapsuleFlashesAfterIt) {
    AppModel& model = launched();
    world.linkShortcuts();
    world.told.calls.clear();
    model.toggleVantle();
    EXPECT_EQ(world.told.calls,
              (QStringList{text("focus started"), text("notch show building flash 0"),
                           text("ripple full 7A78FF Build")}));
    world.time.advance(3.0);
    EXPECT_FALSE(world.told.has(text("notch flash start")));
    world.time.advance(0.1);
    EXPECT_TRUE(world.told.has(text("notch flash start")));
}

TEST_F(AppModelTest, NoFlashFollowsASessionThatEndedMeanwhile) {
    AppModel& model = launched();
    model.toggleVantle();
    world.time.advance(1.0);
    model.toggleVantle();
    world.time.advance(5.0);
    EXPECT_FALSE(world.told.has(text("notch flash start")));
}

TEST_F(AppModelTest, WithReducedMotionTheCapsuleFlashesAtOnce) {
    AppModel& model = launched();
    world.reducedMotion.isOn = true;
    model.toggleVantle();
    EXPECT_TRUE(world.told.has(text("notch show building flash 1")));
    world.time.advance(5.0);
    EXPECT_FALSE(world.told.has(text("notch flash start")));
}

TEST_F(AppModelTest, TheSummaryTellsNewHoursAndTheCarry) {
    AppModel& model = launched();
    ASSERT_TRUE(model.quickLog(text("building"), 50, QString()));
    model.toggleVantle();
    // A person who types all along.
    for (int i = 0; i < 150; ++i) {
        world.idleSource.touch();
        world.time.advance(10.0);
    }
    model.toggleVantle();
    ASSERT_TRUE(world.told.summary);
    EXPECT_EQ(world.told.summary->newHours, 1);
    EXPECT_EQ(world.told.summary->carrySeconds, (3000 + 1500) % 3600);
    EXPECT_FALSE(world.told.summary->isFirstSession);
    EXPECT_FALSE(world.told.summary->spotlightNote);
    EXPECT_EQ(world.told.summary->session, world.log().back());
    // Within the second hour none is new.
    model.toggleVantle();
    world.idleSource.touch();
    world.time.advance(10.0);
    model.toggleVantle();
    EXPECT_EQ(world.told.summary->newHours, 0);
    EXPECT_EQ(world.told.summary->session, world.log().back());
}

TEST_F(AppModelTest, TheHotkeyHintIsGivenOnceAndNotToThoseWhoUseIt) {
    AppModel& model = launched();
    model.toggleVantle();
    model.toggleVantle();
    EXPECT_TRUE(world.told.summary->showHotkeyHint);
    EXPECT_TRUE(world.told.summary->isFirstSession);
    model.toggleVantle();
    model.toggleVantle();
    EXPECT_FALSE(world.told.summary->showHotkeyHint);
}

TEST_F(AppModelTest, AStopByTheShortcutGivesNoHint) {
    launched();
    world.press();
    world.press();
    EXPECT_FALSE(world.told.summary->showHotkeyHint);
}

TEST_F(AppModelTest, TheNoteOfTheSummaryGoesIntoTheLog) {
    launched();
    world.press();
    world.press();
    world.told.closeSummary(text("  wrote the parser  "));
    EXPECT_EQ(world.log().front().note, text("wrote the parser"));
}

TEST_F(AppModelTest, ANoteThatCannotBeAddedIsReported) {
    launched();
    world.press();
    world.press();
    world.disk.remove(ModelWorld::file("sessions.jsonl")).ignore();
    world.told.closeSummary(text("a note"));
    EXPECT_EQ(world.note(), text("The session was saved, but its note could not be added."));
}

TEST_F(AppModelTest, TheIntroFlashesOnceInAnInstallationsLife) {
    AppModel& model = launched();
    model.flashIdleNotchIntroIfNeeded();
    EXPECT_FALSE(world.told.has(text("notch flash idle")));
    world.time.advance(0.7);
    model.flashIdleNotchIntroIfNeeded();
    world.time.advance(2.0);
    EXPECT_EQ(world.told.count(text("notch flash idle")), 1);
}

TEST_F(AppModelTest, TheIntroKeepsStillUnderReducedMotion) {
    world.reducedMotion.isOn = true;
    AppModel& model = launched();
    model.flashIdleNotchIntroIfNeeded();
    world.time.advance(2.0);
    EXPECT_FALSE(world.told.has(text("notch flash idle")));
    EXPECT_FALSE(settings::notchIntroFlashed.read(world.preferences));
}

TEST_F(AppModelTest, ButtonOfThePanelPulsesWithTheIntroductionOfTheCapsule) {
    AppModel& model = launched();
    model.flashIdleNotchIntroIfNeeded();
    EXPECT_FALSE(model.pulsePrimaryOnce());
    world.time.advance(2.0);
    EXPECT_TRUE(world.told.has(text("notch flash idle")));
    EXPECT_TRUE(model.pulsePrimaryOnce());
    model.setPulsePrimaryOnce(false);
    model.flashIdleNotchIntroIfNeeded();
    world.time.advance(2.0);
    EXPECT_FALSE(model.pulsePrimaryOnce()) << "once in an installation's life";
}

TEST_F(AppModelTest, RefreshOfThePanelTellsHowFarBackPresenceIsKnown) {
    AppModel& model = launched();
    world.time.advance(330.0);
    model.toggleVantle();
    model.report(text("something went wrong"));
    int told = 0;
    QObject::connect(&model, &AppModel::backfillCoverageMinutesChanged, &model, [&] { ++told; });
    model.refreshPanelState();
    EXPECT_EQ(model.backfillCoverageMinutes(), 5);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(world.note(), text("something went wrong")) << "an open panel must show it";
}

TEST_F(AppModelTest, CallbacksOfTheCapsuleOutliveTheModel) {
    launched();
    world.press();
    const auto stop = world.told.notchStop;
    const auto pick = world.told.notchPick;
    const auto start = world.told.idleStart;
    world.kill();
    stop();
    pick(text("marketing"));
    start();
    EXPECT_TRUE(world.log().empty());
}

TEST_F(AppModelTest, TheIdleCapsulePicksASkillAndStarts) {
    AppModel& model = launched();
    world.told.idlePick(text("connections"));
    EXPECT_EQ(model.tracker().currentSkillId(), text("connections"));
}

TEST_F(AppModelTest, TheProjectNameIsTrimmedAndMayBeMissing) {
    AppModel& model = launched();
    EXPECT_EQ(model.projectName(), std::nullopt);
    model.setProjectName(text("   "));
    EXPECT_EQ(model.projectName(), std::nullopt);
    model.setProjectName(text("  a boat "));
    EXPECT_EQ(model.projectName(), text("a boat"));
}

} // namespace
} // namespace vantle::tests
