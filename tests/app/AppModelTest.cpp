#include "app/ModelWorld.h"
#include "support/Text.h"

#include <gtest/gtest.h>

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

TEST_F(AppModelTest, ChoosingTheRunningSkillChangesNothingInTheTracker) {
    AppModel& model = launched();
    world.press();
    const auto startedAt = model.tracker().startedAt();
    world.time.advance(5.0);
    model.selectSkill(text("building"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(model.tracker().startedAt(), startedAt);
    EXPECT_TRUE(world.log().empty());
}

TEST_F(AppModelTest, ChoosingAnUnknownSkillChangesNothing) {
    AppModel& model = launched();
    model.selectSkill(text("nonsense"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(model.selectedSkillId(), text("building"));
}

TEST_F(AppModelTest, AChoiceByHandSplitsTheSessionWithAToast) {
    AppModel& model = launched();
    world.press();
    world.time.advance(61.0);
    world.told.calls.clear();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(model.tracker().currentSkillId(), text("marketing"));
    ASSERT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.log().front().activeSeconds, 61);
    EXPECT_TRUE(world.told.has(text("toast Build 7A78FF 61")));
    EXPECT_TRUE(world.told.has(text("auto manual choice")));
    EXPECT_TRUE(world.told.has(text("notch retag marketing flash 1")));
    EXPECT_FALSE(world.told.has(text("focus started")));
    EXPECT_FALSE(world.told.has(text("summary")));
}

TEST_F(AppModelTest, AnAutomaticChoiceSplitsWithoutAToastAndWithoutOfferingARule) {
    AppModel& model = launched();
    world.told.correctionApp = Application{text("editor"), text("Editor")};
    world.press();
    world.time.advance(61.0);
    world.told.calls.clear();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Auto);
    EXPECT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.told.calls, QStringList{text("notch retag marketing flash 1")});
}

TEST_F(AppModelTest, ASplitLosesNoSecondAtTheSeam) {
    AppModel& model = launched();
    world.press();
    world.time.advance(90.0);
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.time.advance(30.0);
    world.press();
    const auto log = world.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].endedAt, log[1].startedAt);
    EXPECT_EQ(log[0].activeSeconds + log[1].activeSeconds, 120);
}

TEST_F(AppModelTest, ASplitOnASlowDiskLosesNoSecondAtTheSeam) {
    AppModel& model = launched();
    world.press();
    world.time.advance(90.5);
    world.files.onCall = [this](fakes::FaultyFileSystem::Operation operation) {
        if (operation == fakes::FaultyFileSystem::Operation::Sync) world.time.freeze(0.75);
    };
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.files.onCall = nullptr;
    world.time.advance(30.0);
    world.press();
    const auto log = world.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].endedAt, log[1].startedAt);
    EXPECT_GE(log[1].activeSeconds, 30 + 1) << "the time of the write counts for the second half";
}

TEST_F(AppModelTest, ASleepInTheMiddleOfASplitCountsForNeitherHalf) {
    AppModel& model = launched();
    world.press();
    world.time.advance(90.0);
    world.files.onCall = [this](fakes::FaultyFileSystem::Operation operation) {
        if (operation != fakes::FaultyFileSystem::Operation::Sync) return;
        world.files.onCall = nullptr;
        world.time.suspend(3600.0);
    };
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.idleSource.touch();
    world.time.advance(30.0);
    world.press();
    const auto log = world.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].activeSeconds, 90);
    EXPECT_EQ(log[1].activeSeconds, 30);
}

TEST_F(AppModelTest, AFailedSplitKeepsTheOldSessionAndTheOldChoice) {
    AppModel& model = launched();
    world.press();
    world.breakWrites(text("sessions.jsonl"), true);
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(model.tracker().currentSkillId(), text("building"));
    EXPECT_EQ(model.selectedSkillId(), text("building"));
    EXPECT_EQ(world.preferences.string(text("skill.lastUsed")), text("building"));
    EXPECT_TRUE(world.note().contains(text("Couldn’t save your hours")));
}

TEST_F(AppModelTest, AnIdleChoiceOnlyColoursTheCapsule) {
    AppModel& model = launched();
    world.told.calls.clear();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(world.told.calls, QStringList{text("notch retag marketing flash 0")});
    EXPECT_EQ(model.tracker().state(), State::Idle);
}

TEST_F(AppModelTest, ARuleIsOfferedAfterAChoiceByHand) {
    AppModel& model = launched();
    world.told.correctionApp = Application{text("editor"), text("Editor")};
    world.press();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_TRUE(world.told.has(text("correction Editor as marketing")));
    world.told.resolveCorrection(true);
    EXPECT_TRUE(world.told.has(text("auto rule editor marketing")));
    EXPECT_TRUE(world.told.has(text("auto resolved editor")));
}

TEST_F(AppModelTest, NoRuleIsOfferedForAnIgnoredOrAlreadyRuledApplicationOrWithAutoModeOff) {
    AppModel& model = launched();
    world.told.correctionApp = Application{text("editor"), text("Editor")};
    world.press();
    world.told.correctionRuling = text("ignore");
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.told.correctionRuling = text("building");
    model.selectSkill(text("building"), AppModel::SkillSelectionOrigin::Human);
    world.told.correctionRuling.reset();
    world.preferences.setBoolean(text("auto.enabled"), false);
    model.selectSkill(text("connections"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_TRUE(world.told.calls.filter(text("correction")).isEmpty());
}

TEST_F(AppModelTest, ARefusedOfferIsForgotten) {
    AppModel& model = launched();
    world.told.correctionApp = Application{text("editor"), text("Editor")};
    world.told.promptsTaken = false;
    world.press();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_TRUE(world.told.has(text("auto forget offer editor")));
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

TEST_F(AppModelTest, AutoStartPlaysTheQuickShow) {
    launched();
    world.told.hooks.onAutoStart(text("marketing"));
    EXPECT_TRUE(world.told.has(text("ripple quick FF375F Marketing")));
    EXPECT_EQ(world.told.hooks.sessionState(), State::Running);
    EXPECT_EQ(world.told.hooks.sessionSkillId(), text("marketing"));
    world.time.advance(1.35);
    EXPECT_TRUE(world.told.has(text("notch flash start")));
}

TEST_F(AppModelTest, AutoModeSeesTheApplicationOfTheSessionOnlyWhileOneIsOpen) {
    AppModel& model = launched();
    world.frontmost.application = Application{text("editor"), text("Editor")};
    EXPECT_EQ(world.told.hooks.sessionBundleId(), std::nullopt);
    model.toggleVantle();
    EXPECT_EQ(world.told.hooks.sessionBundleId(), text("editor"));
    model.toggleVantle();
    EXPECT_EQ(world.told.hooks.sessionBundleId(), std::nullopt);
}

TEST_F(AppModelTest, ASuggestedRetagSplitsOnlyAnOpenSessionOntoAnotherKnownSkill) {
    AppModel& model = launched();
    world.told.hooks.onRetagSuggested(text("marketing"));
    EXPECT_EQ(model.selectedSkillId(), text("building"));
    model.toggleVantle();
    world.told.hooks.onRetagSuggested(text("nonsense"));
    EXPECT_TRUE(world.log().empty());
    world.told.hooks.onRetagSuggested(text("marketing"));
    EXPECT_EQ(world.log().size(), 1u);
}

TEST_F(AppModelTest, AnswersToTheTagPromptBecomeRules) {
    using Outcome = collaborators::TagPrompt::Outcome;
    AppModel& model = launched();
    model.toggleVantle();
    world.told.hooks.onTagPromptSuggested(text("browser"), text("Browser"));
    EXPECT_TRUE(world.told.has(text("tag prompt Browser counting 1 browser 1")));
    world.told.resolveTag({Outcome::Kind::Ignore, QString()});
    EXPECT_TRUE(world.told.has(text("auto rule browser ignore")));
    world.told.calls.clear();
    world.told.resolveTag({Outcome::Kind::Dismiss, QString()});
    EXPECT_EQ(world.told.calls, QStringList{text("auto resolved browser")});
    world.told.resolveTag({Outcome::Kind::Tagged, text("gone")});
    EXPECT_FALSE(world.told.has(text("auto rule browser gone")));
    world.told.resolveTag({Outcome::Kind::Tagged, text("marketing")});
    EXPECT_TRUE(world.told.has(text("auto rule browser marketing")));
    EXPECT_EQ(model.tracker().currentSkillId(), text("marketing"));
    EXPECT_EQ(world.log().size(), 1u);
}

TEST_F(AppModelTest, ARefusedTagPromptIsForgotten) {
    launched();
    world.told.promptsTaken = false;
    world.told.hooks.onTagPromptSuggested(text("app"), text("App"));
    EXPECT_TRUE(world.told.has(text("auto forget offer app")));
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
    EXPECT_FALSE(world.preferences.flag(preferencekeys::notchIntroFlashed));
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
