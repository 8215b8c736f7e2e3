// The session's states and what counts; the disk and the clock stay well-behaved here.
#include "tracking/TrackerCore.h"

#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using State = TrackerCore::State;
using testing::ElementsAre;
using testing::IsEmpty;

class TrackerCoreTest : public testing::Test, protected TrackingWorld {
protected:
    TrackerCoreTest() {
        QObject::connect(&tracker, &TrackerCore::stateChanged, [this] {
            states.push_back(tracker.state());
            skillsSeen.push_back(tracker.currentSkillId());
            startsSeen.push_back(tracker.startedAt());
        });
        tracker.onSessionStarted = [this](const Skill& skill, Date startedAt) {
            started.emplace_back(skill, startedAt);
        };
        tracker.onSessionEnded = [this](const Session& session) { ended.push_back(session); };
    }

    std::optional<int> start(int backfillMinutes = 0) {
        return tracker.start(building, backfillMinutes);
    }
    [[nodiscard]] double accumulated() const { return tracker.internals().accumulatedSeconds; }

    const Skill building = samples::skill(QStringLiteral("building"));
    const Date begin = samples::morning();
    std::vector<State> states;
    std::vector<std::optional<QString>> skillsSeen;
    std::vector<std::optional<Date>> startsSeen;
    std::vector<std::pair<Skill, Date>> started;
    std::vector<Session> ended;
};

TEST_F(TrackerCoreTest, IsIdleAndEmptyAtFirst) {
    EXPECT_EQ(tracker.state(), State::Idle);
    EXPECT_EQ(tracker.currentSkillId(), std::nullopt);
    EXPECT_EQ(tracker.startedAt(), std::nullopt);
    EXPECT_EQ(tracker.displayActiveSeconds(), 0);
    EXPECT_FALSE(tracker.internals().ticking);
    EXPECT_THAT(files.calls(), IsEmpty());
}

TEST_F(TrackerCoreTest, AnObserverOfTheStateSeesTheOtherFieldsFilled) {
    EXPECT_EQ(start(), 0);
    tracker.stop();
    EXPECT_THAT(states, ElementsAre(State::Running, State::Idle));
    EXPECT_THAT(skillsSeen, ElementsAre(QStringLiteral("building"), std::nullopt));
    EXPECT_THAT(startsSeen, ElementsAre(begin, std::nullopt));
}

TEST_F(TrackerCoreTest, StartTellsItsOwnerAndRemembersTheSkill) {
    EXPECT_EQ(start(), 0);
    EXPECT_THAT(started, ElementsAre(std::pair(building, begin)));
    EXPECT_EQ(preferences.string(QStringLiteral("skill.lastUsed")), QStringLiteral("building"));
    EXPECT_TRUE(tracker.internals().ticking);
}

TEST_F(TrackerCoreTest, StartKeepsTheSessionThatRunsOrRests) {
    ASSERT_EQ(start(), 0);
    time.advance(100);
    EXPECT_EQ(tracker.start(samples::skill(QStringLiteral("other")), 5), std::nullopt);
    tracker.pause(time.now());
    EXPECT_EQ(tracker.start(samples::skill(QStringLiteral("other")), 5), std::nullopt);
    EXPECT_EQ(tracker.currentSkillId(), QStringLiteral("building"));
    EXPECT_EQ(tracker.startedAt(), begin);
    EXPECT_EQ(tracker.displayActiveSeconds(), 100);
    EXPECT_EQ(started.size(), 1u);
    EXPECT_EQ(preferences.string(QStringLiteral("skill.lastUsed")), QStringLiteral("building"));
}

TEST_F(TrackerCoreTest, ConfirmedBackfillMovesTheStartBackAndCounts) {
    evidence.activeMinutes = 10;
    EXPECT_EQ(start(10), 10);
    EXPECT_THAT(evidence.asked, ElementsAre(10));
    EXPECT_EQ(tracker.startedAt(), begin - Seconds(600));
    EXPECT_EQ(tracker.displayActiveSeconds(), 600);
    EXPECT_EQ(started.front().second, begin - Seconds(600));
}

TEST_F(TrackerCoreTest, BackfillOutsideOneToThirtyMinutesStartsNow) {
    for (const int minutes : {31, 0, -1, 1'000'000}) {
        EXPECT_EQ(start(minutes), 0);
        EXPECT_EQ(tracker.startedAt(), time.now());
        EXPECT_EQ(tracker.displayActiveSeconds(), 0);
        tracker.stop();
    }
    EXPECT_THAT(evidence.asked, IsEmpty());
    EXPECT_EQ(start(30), 30);
}

TEST_F(TrackerCoreTest, BackfillThatTheEvidenceRefusesStartsNow) {
    evidence.activeMinutes = 9;
    EXPECT_EQ(start(10), 0);
    EXPECT_EQ(tracker.startedAt(), begin);
    tracker.stop();
    tracker.setIdleMonitor(nullptr);
    EXPECT_EQ(start(1), 0);
}

TEST_F(TrackerCoreTest, AMonitorThatIsGoneConfirmsNothing) {
    {
        FakeEvidence shortLived;
        tracker.setIdleMonitor(&shortLived);
    }
    EXPECT_EQ(start(1), 0);
    EXPECT_FALSE(tracker.applyBackfill(1));
}

TEST_F(TrackerCoreTest, ActiveSecondsAreCutOffOnTheScreenAndRoundedInTheRecord) {
    start();
    time.advance(10.5);
    EXPECT_EQ(tracker.displayActiveSeconds(), 10);
    const auto session = tracker.stop();
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(session->activeSeconds, 11);
}

TEST_F(TrackerCoreTest, PauseAtTheLastInputCutsTheAwayTimeOutBackwards) {
    start();
    time.advance(600);
    tracker.pause(begin + Seconds(420));
    EXPECT_EQ(tracker.state(), State::Paused);
    EXPECT_EQ(tracker.displayActiveSeconds(), 420);
    time.advance(1000);
    EXPECT_EQ(tracker.displayActiveSeconds(), 420);
    EXPECT_EQ(tracker.internals().lastKnownGoodAt, begin + Seconds(420));
}

TEST_F(TrackerCoreTest, PauseBeforeTheSegmentCountsNothing) {
    start();
    time.advance(10);
    tracker.pause(begin - Seconds(5));
    EXPECT_EQ(accumulated(), 0);
    EXPECT_EQ(tracker.internals().lastKnownGoodAt, begin);
}

TEST_F(TrackerCoreTest, PauseInTheFutureCountsUpToNow) {
    start();
    time.advance(10);
    tracker.pause(begin + Seconds(1000));
    EXPECT_EQ(accumulated(), 10);
}

TEST_F(TrackerCoreTest, PauseAndResumeDoNothingInOtherStates) {
    tracker.pause(begin);
    tracker.resume();
    EXPECT_EQ(tracker.state(), State::Idle);
    start();
    tracker.resume();
    EXPECT_EQ(tracker.welcomeBack(), std::nullopt);
    tracker.pause(time.now());
    time.advance(60);
    tracker.pause(time.now());
    EXPECT_EQ(accumulated(), 0);
    EXPECT_THAT(states, ElementsAre(State::Running, State::Paused));
}

TEST_F(TrackerCoreTest, NoTicksRunWhilePaused) {
    start();
    EXPECT_EQ(time.repeatingTimers(1.0), 1u);
    tracker.pause(time.now());
    EXPECT_EQ(time.timerCount(), 0u);
    tracker.resume();
    EXPECT_EQ(time.repeatingTimers(1.0), 1u);
    tracker.stop();
    EXPECT_EQ(time.timerCount(), 0u);
}

TEST_F(TrackerCoreTest, ResumeCountsFromNowOn) {
    start();
    time.advance(100);
    tracker.pause(time.now());
    time.advance(1000);
    tracker.resume();
    time.advance(20);
    EXPECT_EQ(tracker.displayActiveSeconds(), 120);
    EXPECT_EQ(tracker.startedAt(), begin);
}

TEST_F(TrackerCoreTest, TheWelcomeRoundsTheMinutesAway) {
    const auto welcomeAfter = [this](double seconds) {
        tracker.pause(time.now());
        time.advance(seconds);
        tracker.resume();
        return tracker.welcomeBack();
    };
    start();
    EXPECT_EQ(welcomeAfter(90), QStringLiteral("welcome back, paused 2m"));
    EXPECT_EQ(welcomeAfter(89.875), QStringLiteral("welcome back, paused 1m"));
    EXPECT_EQ(welcomeAfter(29), QStringLiteral("welcome back, paused 0m"));
    EXPECT_EQ(welcomeAfter(30), QStringLiteral("welcome back, paused 1m"));
    EXPECT_EQ(welcomeAfter(6000), QStringLiteral("welcome back, paused 100m"));
}

TEST_F(TrackerCoreTest, TheWelcomeCountsFromTheMomentCountingStopped) {
    start();
    time.advance(600);
    tracker.pause(begin + Seconds(300));
    tracker.resume();
    EXPECT_EQ(tracker.welcomeBack(), QStringLiteral("welcome back, paused 5m"));
}

TEST_F(TrackerCoreTest, TheWelcomeGoesAtTheFirstTickAfterAMinute) {
    start();
    tracker.pause(time.now());
    tracker.resume();
    EXPECT_EQ(tracker.welcomeBackShownAt(), time.now());
    time.advance(59);
    EXPECT_TRUE(tracker.welcomeBack().has_value());
    time.advance(1);
    EXPECT_EQ(tracker.welcomeBack(), std::nullopt);
    EXPECT_EQ(tracker.welcomeBackShownAt(), std::nullopt);
}

TEST_F(TrackerCoreTest, TheWelcomeGoesAtOnceAtTheNextPauseOrStop) {
    start();
    tracker.pause(time.now());
    tracker.resume();
    tracker.pause(time.now());
    EXPECT_EQ(tracker.welcomeBack(), std::nullopt);
    tracker.resume();
    EXPECT_TRUE(tracker.welcomeBack().has_value());
    tracker.stop();
    EXPECT_EQ(tracker.welcomeBack(), std::nullopt);
    EXPECT_EQ(tracker.welcomeBackShownAt(), std::nullopt);
}

TEST_F(TrackerCoreTest, StopLogsTheRecordAndTellsItsOwner) {
    start();
    time.advance(1500);
    const auto session = tracker.stop();
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(session->startedAt, begin);
    EXPECT_EQ(session->endedAt, begin + Seconds(1500));
    EXPECT_EQ(session->activeSeconds, 1500);
    EXPECT_EQ(session->skillId, QStringLiteral("building"));
    EXPECT_EQ(session->note, QString());
    EXPECT_EQ(session->source, sourceApp());
    EXPECT_THAT(ended, ElementsAre(*session));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(*session));
    EXPECT_EQ(content(marker), std::nullopt);
}

TEST_F(TrackerCoreTest, StopWhilePausedEndsNowWithTheCountOfThePause) {
    start();
    time.advance(100);
    tracker.pause(time.now());
    time.advance(500);
    const auto session = tracker.stop();
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(session->activeSeconds, 100);
    EXPECT_EQ(session->endedAt, begin + Seconds(600));
}

TEST_F(TrackerCoreTest, ASessionStoppedAtOnceIsLoggedWithZeroSeconds) {
    start();
    const auto session = tracker.stop();
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(session->activeSeconds, 0);
    EXPECT_EQ(tracker.allSessions().size(), 1u);
}

TEST_F(TrackerCoreTest, StopWithoutASessionGivesNothing) {
    EXPECT_EQ(tracker.stop(), std::nullopt);
    EXPECT_THAT(states, IsEmpty());
    EXPECT_EQ(content(log), std::nullopt);
}

TEST_F(TrackerCoreTest, EachSessionHasAnIdOfItsOwnThatItsMarkerHadBefore) {
    start();
    time.settle();
    const auto firstMarker = json::decodeMarker(content(marker).value());
    const auto first = tracker.stop();
    start();
    const auto second = tracker.stop();
    ASSERT_TRUE(first && second && firstMarker);
    EXPECT_EQ(first->id, firstMarker->id);
    EXPECT_NE(first->id, second->id);
}

TEST_F(TrackerCoreTest, TheCallbackOfTheStartFindsTheSessionRunning) {
    State seen = State::Idle;
    tracker.onSessionStarted = [&](const Skill&, Date) { seen = tracker.state(); };
    start();
    EXPECT_EQ(seen, State::Running);
}

TEST_F(TrackerCoreTest, TheCallbackOfTheStopFindsItIdleAndMayStartTheNext) {
    tracker.onSessionEnded = [&](const Session&) {
        EXPECT_EQ(tracker.state(), State::Idle);
        EXPECT_EQ(start(), 0);
    };
    start();
    time.advance(60);
    EXPECT_TRUE(tracker.stop().has_value());
    EXPECT_EQ(tracker.state(), State::Running);
    EXPECT_EQ(tracker.allSessions().size(), 1u);
}

TEST_F(TrackerCoreTest, BackfillOfAnOpenSessionAsksAboutTheWholeStretch) {
    start();
    time.advance(600);
    EXPECT_TRUE(tracker.applyBackfill(5));
    EXPECT_THAT(evidence.asked, ElementsAre(15));
    EXPECT_EQ(tracker.startedAt(), begin - Seconds(300));
    EXPECT_EQ(tracker.displayActiveSeconds(), 900);
}

TEST_F(TrackerCoreTest, AStartedMinuteCountsAsAWholeOneForTheQuestion) {
    start();
    time.advance(600.125);
    EXPECT_TRUE(tracker.applyBackfill(5));
    EXPECT_THAT(evidence.asked, ElementsAre(16));
}

TEST_F(TrackerCoreTest, BackfillIsRefusedWithoutASessionOrOutsideTheLimits) {
    EXPECT_FALSE(tracker.applyBackfill(5));
    start();
    EXPECT_FALSE(tracker.applyBackfill(0));
    EXPECT_FALSE(tracker.applyBackfill(31));
    EXPECT_FALSE(tracker.applyBackfill(-5));
    EXPECT_THAT(evidence.asked, IsEmpty());
    evidence.activeMinutes = 4;
    EXPECT_FALSE(tracker.applyBackfill(5));
    EXPECT_EQ(tracker.startedAt(), begin);
    EXPECT_EQ(tracker.displayActiveSeconds(), 0);
}

TEST_F(TrackerCoreTest, BackfillCanBeAppliedWhilePausedAndAgain) {
    start();
    time.advance(60);
    tracker.pause(time.now());
    EXPECT_TRUE(tracker.applyBackfill(30));
    EXPECT_TRUE(tracker.applyBackfill(30));
    EXPECT_EQ(tracker.startedAt(), begin - Seconds(3600));
    EXPECT_EQ(tracker.displayActiveSeconds(), 3660);
}

TEST_F(TrackerCoreTest, ADiscardedSessionIsNeitherLoggedNorReported) {
    start();
    time.advance(100);
    tracker.discardOpenSessionForErase();
    EXPECT_EQ(tracker.state(), State::Idle);
    EXPECT_EQ(tracker.currentSkillId(), std::nullopt);
    EXPECT_EQ(tracker.displayActiveSeconds(), 0);
    EXPECT_THAT(ended, IsEmpty());
    EXPECT_EQ(content(log), std::nullopt);
    time.advance(120);
    EXPECT_EQ(time.timerCount(), 0u);
}

TEST_F(TrackerCoreTest, DebugSecondsCountOnlyInAnOpenSession) {
    tracker.debugAdvance(100);
    EXPECT_EQ(accumulated(), 0);
    start();
    tracker.debugAdvance(100);
    tracker.debugAdvance(-50);
    tracker.debugAdvance(0);
    EXPECT_EQ(tracker.displayActiveSeconds(), 100);
    tracker.pause(time.now());
    tracker.debugAdvance(1);
    EXPECT_EQ(tracker.displayActiveSeconds(), 101);
}

TEST_F(TrackerCoreTest, ASessionOfExactlySevenDaysCanBeStoppedAndOneOfASecondMoreCannot) {
    start();
    time.advance(604800);
    ASSERT_TRUE(tracker.stop().has_value());
    start();
    time.advance(604801);
    EXPECT_EQ(tracker.stop(), std::nullopt);
    EXPECT_EQ(tracker.state(), State::Running);
    EXPECT_TRUE(tracker.storageError().has_value());
    EXPECT_TRUE(content(marker).has_value());
    EXPECT_EQ(ended.size(), 1u);
}

TEST_F(TrackerCoreTest, APauseOfMoreThanSevenDaysCannotBeStoppedEither) {
    start();
    time.advance(60);
    tracker.pause(time.now());
    time.advance(604800);
    EXPECT_EQ(tracker.stop(), std::nullopt);
    EXPECT_EQ(tracker.state(), State::Paused);
    EXPECT_TRUE(tracker.storageError().has_value());
    EXPECT_EQ(content(log), std::nullopt);
}

} // namespace
} // namespace vantle
