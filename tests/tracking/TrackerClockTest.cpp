// A wall clock that jumps while a session is open: set by hand, corrected by a server, or asleep.
#include "tracking/TrackingWorld.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

class TrackerClockTest : public testing::Test, protected TrackingWorld {
protected:
    TrackerClockTest() { tracker.start(samples::skill(QStringLiteral("building")), 0); }
    const Date begin = samples::morning();
};

TEST_F(TrackerClockTest, SessionAfterAnotherBeginsWhereThatEndedUnlessOneIsOpen) {
    time.advance(600.0);
    const auto first = tracker.stop();
    ASSERT_TRUE(first);
    const Skill skill = samples::skill(QStringLiteral("building"));
    ASSERT_TRUE(tracker.startAfter(*first, skill));
    EXPECT_EQ(tracker.startedAt(), first->endedAt);
    time.advance(600.0);
    EXPECT_FALSE(tracker.startAfter(*first, skill));
    EXPECT_EQ(tracker.displayActiveSeconds(), 600);
}

TEST_F(TrackerClockTest, SleepOfTheMachineIsCutOutByTheNextTick) {
    time.advance(100);
    time.suspend(8 * 3600);
    time.advance(1);
    EXPECT_EQ(tracker.state(), TrackerCore::State::Running);
    EXPECT_EQ(tracker.displayActiveSeconds(), 100);
    EXPECT_EQ(tracker.welcomeBack(), QStringLiteral("welcome back, paused 480m"));
    time.advance(50);
    EXPECT_EQ(tracker.stop()->activeSeconds, 150);
}

TEST_F(TrackerClockTest, SleepIsNotCountedByAStopThatComesBeforeTheNextTick) {
    time.advance(100);
    time.suspend(8 * 3600);
    EXPECT_EQ(tracker.displayActiveSeconds(), 100);
    EXPECT_EQ(tracker.stop()->activeSeconds, 100);
}

TEST_F(TrackerClockTest, SleepIsNotCountedByAPauseThatComesBeforeTheNextTick) {
    time.advance(100);
    time.suspend(8 * 3600);
    tracker.pause(time.now());
    EXPECT_EQ(tracker.displayActiveSeconds(), 100);
    time.settle();
    EXPECT_EQ(json::decodeMarker(content(marker).value())->activeSeconds, 100);
    tracker.resume();
    EXPECT_EQ(tracker.welcomeBack(), QStringLiteral("welcome back, paused 480m"));
}

TEST_F(TrackerClockTest, TimeInWhichTheProgramWasStoppedIsCutOut) {
    time.advance(100);
    time.freeze(600);
    time.advance(0);
    EXPECT_EQ(tracker.displayActiveSeconds(), 100);
    time.advance(20);
    EXPECT_EQ(tracker.stop()->activeSeconds, 120);
}

TEST_F(TrackerClockTest, EventLoopThatIsBusyForAWhileCostsNothing) {
    time.advance(100);
    time.freeze(15);
    time.advance(5);
    EXPECT_EQ(tracker.stop()->activeSeconds, 120);
}

TEST_F(TrackerClockTest, SleepDuringAPauseCutsNothing) {
    time.advance(100);
    tracker.pause(time.now());
    time.suspend(3600);
    tracker.resume();
    time.advance(20);
    EXPECT_EQ(tracker.displayActiveSeconds(), 120);
}

TEST_F(TrackerClockTest, SetBackBeforeTheSegmentThePauseTakesSecondsAway) {
    time.advance(100);
    tracker.pause(time.now());
    tracker.resume();
    time.advance(10);
    time.shiftWall(-40);
    tracker.pause(time.now());
    EXPECT_EQ(tracker.internals().accumulatedSeconds, 70);
    EXPECT_EQ(tracker.displayActiveSeconds(), 70);
}

TEST_F(TrackerClockTest, SetBackBeforeTheStartTheDisplayAndTheMarkerClampAtZero) {
    time.advance(10);
    time.shiftWall(-1000);
    EXPECT_EQ(tracker.displayActiveSeconds(), 0);
    tracker.pause(time.now());
    EXPECT_EQ(tracker.internals().accumulatedSeconds, -990);
    EXPECT_EQ(tracker.displayActiveSeconds(), 0);
    time.settle();
    EXPECT_EQ(json::decodeMarker(content(marker).value())->activeSeconds, 0);
}

TEST_F(TrackerClockTest, SetBackBeforeTheStartTheSessionCanBeStoppedOnceTheClockHasCaughtUp) {
    time.advance(10);
    time.shiftWall(-1000);
    EXPECT_EQ(tracker.stop(), std::nullopt);
    EXPECT_TRUE(tracker.storageError().has_value());
    time.advance(990);
    const auto session = tracker.stop();
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(session->endedAt, session->startedAt);
    EXPECT_EQ(session->activeSeconds, 0);
}

TEST_F(TrackerClockTest, SetForwardTheTimeCountsUntilThePauseCutsItOut) {
    time.advance(60);
    time.shiftWall(7200);
    EXPECT_EQ(tracker.displayActiveSeconds(), 7260);
    tracker.pause(begin + Seconds(60));
    EXPECT_EQ(tracker.displayActiveSeconds(), 60);
}

TEST_F(TrackerClockTest, SetForwardBeyondSevenDaysTheSessionStopsAfterItIsSetBack) {
    time.advance(60);
    time.shiftWall(8.0 * 86400);
    EXPECT_EQ(tracker.stop(), std::nullopt);
    time.shiftWall(-8.0 * 86400);
    const auto session = tracker.stop();
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(session->activeSeconds, 60);
    EXPECT_EQ(tracker.storageError(), std::nullopt);
}

TEST_F(TrackerClockTest, SetBackWhilePausedTheWelcomeSaysLessThanNothing) {
    tracker.pause(time.now());
    time.shiftWall(-95);
    tracker.resume();
    EXPECT_EQ(tracker.welcomeBack(), QStringLiteral("welcome back, paused -2m"));
    tracker.pause(time.now());
    time.shiftWall(-20);
    tracker.resume();
    EXPECT_EQ(tracker.welcomeBack(), QStringLiteral("welcome back, paused 0m"));
}

TEST_F(TrackerClockTest, TheWelcomeWaitsForTheWallClock) {
    tracker.pause(time.now());
    tracker.resume();
    time.shiftWall(-30);
    time.advance(60);
    EXPECT_TRUE(tracker.welcomeBack().has_value());
    time.advance(30);
    EXPECT_EQ(tracker.welcomeBack(), std::nullopt);
}

TEST_F(TrackerClockTest, MarkersKeepTheirMinuteWhateverTheWallClockDoes) {
    time.shiftWall(-3600);
    time.advance(60);
    EXPECT_EQ(tracker.internals().ticksSinceMarkerWrite, 0);
    EXPECT_EQ(json::decodeMarker(content(marker).value())->lastSeenAt, time.now());
}

TEST_F(TrackerClockTest, BackfillWithTheStartInTheFutureAsksAboutFewerMinutes) {
    time.shiftWall(-200);
    EXPECT_TRUE(tracker.applyBackfill(10));
    EXPECT_EQ(evidence.asked.back(), 7);
}

TEST_F(TrackerClockTest, AClockThatRunsWildOverflowsNothing) {
    time.shiftWall(1e300);
    EXPECT_GE(tracker.displayActiveSeconds(), 0);
    EXPECT_EQ(tracker.stop(), std::nullopt);
    static_cast<void>(tracker.applyBackfill(1));
    tracker.pause(time.now());
    tracker.resume();
    time.settle();
    EXPECT_TRUE(tracker.storageError().has_value());
}

} // namespace
} // namespace vantle
