// The ends: quitting, a crash and what follows it, and the erase of all data.
#include "app/ModelWorld.h"
#include "sensing/IdleMonitor.h"
#include "support/Text.h"
#include "tracking/Samples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

namespace vantle::tests {
namespace {

using Operation = fakes::FaultyFileSystem::Operation;

class AppModelEndTest : public testing::Test {
protected:
    /// A run that dies 130 s into a session: its marker is 120 s old in the session.
    void leaveKilledSession() {
        world.launch();
        world.press();
        world.time.advance(130.0);
        world.kill();
        world.told.calls.clear();
    }
    /// Whether the run after this one offers that session.
    [[nodiscard]] bool isOfferedNext() {
        world.kill();
        world.told.calls.clear();
        world.launch();
        return world.told.has(text("recovery 120"));
    }

    ModelWorld world;
};

TEST_F(AppModelEndTest, QuittingInASessionLogsItWithoutASummary) {
    AppModel& model = world.launch();
    world.press();
    world.time.advance(100.0);
    model.quit();
    EXPECT_EQ(world.log().size(), 1u);
    EXPECT_FALSE(world.hasMarker());
    EXPECT_FALSE(world.told.has(text("summary")));
    EXPECT_FALSE(world.hotKeyPort.press());
    EXPECT_EQ(world.terminations, 1);
}

TEST_F(AppModelEndTest, TheStopRunsOnceHoweverOftenTheEndIsTold) {
    AppModel& model = world.launch();
    world.press();
    model.quit();
    model.prepareForTermination();
    model.quit();
    EXPECT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.told.count(text("notch hide")), 1);
    EXPECT_EQ(world.terminations, 2);
}

TEST_F(AppModelEndTest, WithoutAScreenTheSessionIsLoggedAndNoSurfaceIsTold) {
    AppModel& model = world.launch();
    world.linkShortcuts();
    world.press();
    world.time.advance(100.0);
    int told = 0;
    QObject::connect(&model.tracker(), &TrackerCore::stateChanged, &model, [&] { ++told; });
    world.told.calls.clear();
    model.prepareForTerminationUnseen();
    EXPECT_EQ(world.log().size(), 1u);
    EXPECT_FALSE(world.hasMarker());
    EXPECT_EQ(told, 0);
    EXPECT_EQ(world.told.calls, QStringList{text("focus ended")});
}

TEST_F(AppModelEndTest, AQuitThatCannotSaveLeavesTheMarkerForTheNextLaunch) {
    AppModel& model = world.launch();
    world.press();
    world.time.advance(100.0);
    world.breakWrites(text("sessions.jsonl"), true);
    model.quit();
    EXPECT_TRUE(world.hasMarker());
    world.breakWrites(text("sessions.jsonl"), false);
    world.kill();
    world.launch();
    EXPECT_TRUE(world.told.has(text("recovery 60")));
}

TEST_F(AppModelEndTest, AKilledSessionIsOfferedAndKept) {
    world.launch();
    world.press();
    world.time.advance(130.0);
    world.kill();
    AppModel& model = world.launch();
    EXPECT_EQ(world.note(), text("Found 2 min from the previous run · choose Keep or Discard"));
    EXPECT_TRUE(world.told.has(text("recovery 120")));
    EXPECT_TRUE(world.log().empty());
    world.told.recoveryKeep();
    EXPECT_EQ(world.note(), text("Recovered 2 min from the previous run"));
    ASSERT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.log().front().activeSeconds, 120);
    EXPECT_FALSE(world.hasMarker());
    EXPECT_EQ(model.tracker().state(), TrackerCore::State::Idle);
}

TEST_F(AppModelEndTest, TheOfferComesBeforeTheIdleCapsule) {
    world.launch();
    world.press();
    world.time.advance(130.0);
    world.kill();
    world.told.calls.clear();
    world.launch();
    EXPECT_LT(world.told.calls.indexOf(text("recovery 120")),
              world.told.calls.indexOf(text("notch idle building flash 0")));
}

TEST_F(AppModelEndTest, AKilledSessionIsOfferedAndDiscarded) {
    world.launch();
    world.press();
    world.time.advance(130.0);
    world.kill();
    world.launch();
    world.told.recoveryDiscard();
    EXPECT_EQ(world.note(), text("Discarded the recovered session"));
    EXPECT_TRUE(world.log().empty());
    EXPECT_FALSE(world.hasMarker());
}

TEST_F(AppModelEndTest, AnOfferThatIsNotAnsweredComesAgain) {
    world.launch();
    world.press();
    world.time.advance(130.0);
    world.kill();
    world.launch().quit();
    world.kill();
    world.told.calls.clear();
    world.launch();
    EXPECT_TRUE(world.told.has(text("recovery 120")));
}

TEST_F(AppModelEndTest, RunThatEndsInItsFirstTurnShowsNothingAndLeavesTheOfferToTheNext) {
    leaveKilledSession();
    world.construct();
    world.kill();
    EXPECT_EQ(world.told.calls, QStringList());
    EXPECT_TRUE(isOfferedNext());
}

TEST_F(AppModelEndTest, UnansweredOfferOutlivesASessionAndAQuit) {
    leaveKilledSession();
    AppModel& model = world.launch();
    world.press();
    world.time.advance(30.0);
    world.press();
    EXPECT_EQ(world.log().size(), 1u);
    model.quit();
    EXPECT_TRUE(isOfferedNext());
}

TEST_F(AppModelEndTest, UnansweredOfferOutlivesAQuitInASession) {
    leaveKilledSession();
    AppModel& model = world.launch();
    world.press();
    world.time.advance(30.0);
    model.quit();
    EXPECT_EQ(world.log().size(), 1u);
    EXPECT_TRUE(isOfferedNext());
}

TEST_F(AppModelEndTest, UnansweredOfferOutlivesAnEndWithoutAScreen) {
    leaveKilledSession();
    AppModel& model = world.launch();
    world.press();
    model.prepareForTerminationUnseen();
    EXPECT_TRUE(isOfferedNext());
}

TEST_F(AppModelEndTest, UnansweredOfferOutlivesASessionAndAKill) {
    leaveKilledSession();
    world.launch();
    world.press();
    world.press();
    EXPECT_TRUE(isOfferedNext());
}

TEST_F(AppModelEndTest, UnansweredOfferOutlivesASplitSession) {
    leaveKilledSession();
    AppModel& model = world.launch();
    world.press();
    world.time.advance(30.0);
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_TRUE(world.hasMarker());
    world.press();
    EXPECT_TRUE(isOfferedNext());
}

TEST_F(AppModelEndTest, WhatWasChosenLastIsOnDiskWhenTheEndReturns) {
    AppModel& model = world.launch();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    model.prepareForTermination();
    EXPECT_EQ(world.preferences.saved(), world.preferences.texts());
    EXPECT_EQ(world.preferences.saved().value(settings::lastUsedSkill.key()), text("marketing"));
}

TEST_F(AppModelEndTest, OfferWhoseKeepFailsStaysUnanswered) {
    leaveKilledSession();
    AppModel& model = world.launch();
    world.breakWrites(text("sessions.jsonl"), true);
    world.told.recoveryKeep();
    world.breakWrites(text("sessions.jsonl"), false);
    world.press();
    world.press();
    model.quit();
    EXPECT_TRUE(isOfferedNext());
}

TEST_F(AppModelEndTest, MarkerThatCannotBePutBackAfterAStopIsPutBackAtTheEnd) {
    leaveKilledSession();
    AppModel& model = world.launch();
    world.press();
    world.settle();
    world.breakWrites(text("open-session.json"), true);
    world.press();
    EXPECT_FALSE(world.hasMarker()) << "the marker of a logged session";
    world.breakWrites(text("open-session.json"), false);
    model.quit();
    EXPECT_TRUE(isOfferedNext());
}

TEST_F(AppModelEndTest, AnsweredOfferDoesNotComeBack) {
    for (const bool keeps : {true, false}) {
        leaveKilledSession();
        AppModel& model = world.launch();
        (keeps ? world.told.recoveryKeep : world.told.recoveryDiscard)();
        world.press();
        world.press();
        model.quit();
        EXPECT_FALSE(world.hasMarker());
        EXPECT_FALSE(isOfferedNext()) << keeps;
        world.kill();
    }
}

TEST_F(AppModelEndTest, ErasedOfferDoesNotComeBack) {
    leaveKilledSession();
    AppModel& model = world.launch();
    model.eraseEverything();
    model.markWelcomeDone();
    world.press();
    world.press();
    model.quit();
    EXPECT_FALSE(world.hasMarker());
    EXPECT_FALSE(isOfferedNext());
}

TEST_F(AppModelEndTest, SessionThatCannotBeLoggedAtTheEndKeepsItsMarkerBeforeAnOldOffer) {
    leaveKilledSession();
    world.idleSource.fix(0);
    AppModel& model = world.launch();
    world.press();
    world.time.advance(190.0);
    world.breakWrites(text("sessions.jsonl"), true);
    model.quit();
    world.breakWrites(text("sessions.jsonl"), false);
    world.kill();
    world.launch();
    EXPECT_TRUE(world.told.has(text("recovery 180")));
}

TEST_F(AppModelEndTest, AMarkerOfALoggedSessionIsNotLoggedTwice) {
    world.launch();
    world.press();
    world.time.advance(130.0);
    // The disk loses the removal of the marker, not the record.
    world.files.fail(Operation::Remove, text("open-session.json"), EIO);
    world.press();
    world.files.healAll();
    world.kill();
    world.launch();
    world.told.recoveryKeep();
    EXPECT_EQ(world.log().size(), 1u);
    EXPECT_FALSE(world.hasMarker());
    EXPECT_EQ(world.note(), text("Recovered 2 min from the previous run"));
}

TEST_F(AppModelEndTest, EraseInASessionLeavesNothing) {
    AppModel& model = world.launch();
    world.linkShortcuts();
    world.press();
    world.time.advance(100.0);
    world.press();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.press();
    world.time.advance(100.0);
    world.told.calls.clear();
    EXPECT_EQ(model.eraseEverything(), std::nullopt);
    world.settle();
    EXPECT_EQ(world.note(), text("All local Vantle data was erased"));
    EXPECT_EQ(model.tracker().state(), TrackerCore::State::Idle);
    EXPECT_EQ(model.selectedSkillId(), text("building"));
    EXPECT_FALSE(world.told.has(text("focus ended")));
    EXPECT_FALSE(world.told.has(text("summary")));
    for (const QString& path : world.paths.allDataFiles())
        EXPECT_FALSE(world.disk.exists(path)) << path.toStdString();
    EXPECT_TRUE(model.needsWelcome());
    EXPECT_EQ(world.preferences.string(text("skill.lastUsed")), std::nullopt);
    EXPECT_EQ(world.told.calls,
              (QStringList{text("recovery hide"), text("notch idle building flash 0")}));
}

TEST_F(AppModelEndTest, ErasedFilesStayAwayAfterALossOfPower) {
    AppModel& model = world.launch();
    world.press();
    world.press();
    world.files.forgetCalls();
    EXPECT_EQ(model.eraseEverything(), std::nullopt);
    using Call = fakes::FaultyFileSystem::Call;
    const auto& calls = world.files.calls();
    const auto lastOf = [&](Operation operation) {
        return std::ranges::find(calls.rbegin(), calls.rend(), operation, &Call::operation);
    };
    ASSERT_NE(lastOf(Operation::SyncDirectory), calls.rend());
    EXPECT_LT(lastOf(Operation::SyncDirectory), lastOf(Operation::Remove)) << "synced last";
}

TEST_F(AppModelEndTest, ErasedRulesDoNotComeBackFromAQueuedWrite) {
    AppModel& model = world.launch();
    world.autoSkill->rules().setRule(text("editor"), text("marketing"));
    ASSERT_FALSE(world.autoQueue.empty());
    EXPECT_EQ(model.eraseEverything(), std::nullopt);
    world.settle();
    EXPECT_EQ(world.autoSkill->rules().ruling(text("editor")), std::nullopt);
    EXPECT_FALSE(world.disk.exists(ModelWorld::file("auto-rules.json")));
}

TEST_F(AppModelEndTest, QuitWaitsForWhatIsQueuedForTheDisk) {
    AppModel& model = world.launch();
    bool jobRan = false;
    world.autoSkill->rules().setRule(text("editor"), text("marketing"));
    world.ioQueue.async([&] { jobRan = true; });
    model.quit();
    EXPECT_TRUE(world.disk.content(ModelWorld::file("auto-rules.json"))
                    .value_or(QByteArray())
                    .contains("editor"));
    EXPECT_TRUE(jobRan);
}

TEST_F(AppModelEndTest, AnErasedSessionDoesNotComeBackFromAQueuedMarker) {
    AppModel& model = world.launch();
    model.toggleVantle(); // the marker is still queued
    model.eraseEverything();
    world.settle();
    EXPECT_FALSE(world.hasMarker());
}

TEST_F(AppModelEndTest, AnUndeletableFileIsReportedWithItsReasonAndAsStillThere) {
    AppModel& model = world.launch();
    world.press();
    world.press();
    world.files.fail(Operation::Remove, text("sessions.jsonl"), EACCES);
    const auto message = model.eraseEverything();
    ASSERT_TRUE(message);
    // Between the two stands the platform's own wording.
    EXPECT_TRUE(message->startsWith(text("Some local data could not be erased: sessions.jsonl: "
                                         "Permission denied")));
    EXPECT_TRUE(message->endsWith(text("; sessions.jsonl still exists")));
    EXPECT_EQ(world.note(), *message);
}

TEST_F(AppModelEndTest, EndStopsTheLookForAbsences) {
    AppModel& model = world.launch();
    EXPECT_EQ(world.time.repeatingTimers(IdleMonitor::pollInterval), 1u);
    model.prepareForTermination();
    EXPECT_EQ(world.time.repeatingTimers(IdleMonitor::pollInterval), 0u);
}

TEST_F(AppModelEndTest, EraseTakesTheUsersSkillsAndTheLastFailureAway) {
    AppModel& model = world.launch();
    model.addSkill(text("Mine"), 0x112233);
    world.breakWrites(text("sessions.jsonl"), true);
    EXPECT_FALSE(model.quickLog(text("building"), 5, {}));
    ASSERT_TRUE(model.tracker().storageError());
    world.breakWrites(text("sessions.jsonl"), false);
    EXPECT_EQ(model.eraseEverything(), std::nullopt);
    EXPECT_EQ(model.skills(), samples::seeds());
    EXPECT_EQ(model.tracker().storageError(), std::nullopt);
}

TEST_F(AppModelEndTest, TheUserCanGoOnAfterAnErase) {
    AppModel& model = world.launch();
    model.eraseEverything();
    model.markWelcomeDone();
    world.press();
    world.time.advance(60.0);
    world.press();
    EXPECT_EQ(world.log().size(), 1u);
}

} // namespace
} // namespace vantle::tests
