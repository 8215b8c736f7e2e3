#include "sensing/IdleMonitorWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kPoll = IdleMonitor::pollInterval;

// The threshold

TEST_F(IdleMonitorTest, CountsThreeMinutesAsAwayUnlessTheUserChoseOtherwise) {
    EXPECT_EQ(monitor->thresholdSeconds(), 180.0);
    setThreshold(300);
    EXPECT_EQ(monitor->thresholdSeconds(), 300.0);
    setThreshold(1e6);
    EXPECT_EQ(monitor->thresholdSeconds(), 1e6);
}

TEST_F(IdleMonitorTest, TakesATooSmallThresholdForNone) {
    setThreshold(10.0);
    EXPECT_EQ(monitor->thresholdSeconds(), 10.0);
    setThreshold(9.9);
    EXPECT_EQ(monitor->thresholdSeconds(), 180.0);
    setThreshold(-60);
    EXPECT_EQ(monitor->thresholdSeconds(), 180.0);
    setThreshold(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(monitor->thresholdSeconds(), 180.0);
}

TEST_F(IdleMonitorTest, HeedsANewThresholdAtTheNextReading) {
    source.fix(100);
    monitor->start();
    EXPECT_THAT(takeCalls(), IsEmpty());
    setThreshold(60);
    EXPECT_THAT(takeCalls(), IsEmpty());
    time.advance(kPoll);
    EXPECT_THAT(takeCalls(), ElementsAre("away 100"));
    setThreshold(180);
    time.advance(kPoll);
    EXPECT_THAT(takeCalls(), ElementsAre("back"));
}

// Watching

TEST_F(IdleMonitorTest, KnowsNothingBeforeItsFirstReading) {
    EXPECT_EQ(monitor->coverageMinutes(time.now()), 0);
    for (const int minutes : {1, 5, 45})
        EXPECT_FALSE(monitor->wasActiveForLast(minutes));
}

TEST_F(IdleMonitorTest, ReadsAtOnceWhenStartedAndEveryTenSecondsAfterThat) {
    monitor->start();
    EXPECT_EQ(monitor->sampleCount(), 1U);
    time.advance(9.875);
    EXPECT_EQ(monitor->sampleCount(), 1U);
    time.advance(0.125);
    EXPECT_EQ(monitor->sampleCount(), 2U);
    EXPECT_EQ(time.repeatingTimers(kPoll), 1U);
}

TEST_F(IdleMonitorTest, JudgesItsFirstReadingByTheCounterAlone) {
    source.fix(500);
    monitor->start();
    EXPECT_THAT(takeCalls(), ElementsAre("away 500"));
    EXPECT_EQ(monitor->coverageMinutes(time.now()), 0);
    EXPECT_FALSE(monitor->wasActiveForLast(1));
}

TEST_F(IdleMonitorTest, StartedTwiceWatchesOnce) {
    monitor->start();
    monitor->start();
    EXPECT_EQ(time.timerCount(), 1U);
    EXPECT_EQ(monitor->sampleCount(), 1U);
    screens.sleep();
    EXPECT_THAT(takeCalls(), ElementsAre("screens slept"));
}

TEST_F(IdleMonitorTest, ReceivesNothingWhileStopped) {
    screens.sleep();
    screens.wake();
    monitor->start();
    monitor->stop();
    monitor->stop();
    EXPECT_EQ(time.timerCount(), 0U);
    source.fix(500);
    time.advance(600);
    screens.sleep();
    screens.wake();
    EXPECT_EQ(monitor->sampleCount(), 1U);
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_FALSE(monitor->isStarted());
}

TEST_F(IdleMonitorTest, KeepsWhatItKnowsWhileStopped) {
    source.fix(500);
    monitor->start();
    time.advance(60);
    monitor->stop();
    EXPECT_TRUE(monitor->isIdle());
    EXPECT_EQ(monitor->sampleCount(), 7U);
    EXPECT_EQ(monitor->coverageMinutes(time.now()), 1);
    takeCalls();
    source.touch();
    monitor->start();
    EXPECT_THAT(takeCalls(), ElementsAre("back"));
}

TEST_F(IdleMonitorTest, StartedAgainJoinsItsReadingsAcrossTheStop) {
    source.fix(100);
    monitor->start();
    monitor->stop();
    time.advance(90);
    source.fix(3);
    monitor->start();
    EXPECT_THAT(takeCalls(), ElementsAre("away 190", "back"));
}

TEST_F(IdleMonitorTest, LeavesNoTimerAndNoListenerBehind) {
    monitor->start();
    monitor.reset();
    EXPECT_EQ(time.timerCount(), 0U);
    screens.sleep();
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(IdleMonitorTest, WorksWithoutCallbacks) {
    monitor->onIdleBegan = nullptr;
    monitor->onActivityResumed = nullptr;
    monitor->onScreensSlept = nullptr;
    monitor->onScreensWoke = nullptr;
    source.fix(500);
    monitor->start();
    screens.sleep();
    screens.wake();
    source.fix(1);
    time.advance(kPoll);
    EXPECT_FALSE(monitor->isIdle());
    screens.sleep();
    screens.wake();
    EXPECT_FALSE(monitor->screensSleep());
    screens.sleep();
    time.advance(IdleMonitor::readingsThatWakeScreens * kPoll);
    EXPECT_FALSE(monitor->screensSleep()) << "a minute of input";
}

TEST_F(IdleMonitorTest, MayBeStoppedFromItsOwnCallback) {
    monitor->onIdleBegan = [this](double) { monitor->stop(); };
    source.growFrom(0);
    monitor->start();
    time.advance(1000);
    EXPECT_FALSE(monitor->isStarted());
    EXPECT_EQ(time.timerCount(), 0U);
}

// Away and back

TEST_F(IdleMonitorTest, TellsOnceThatTheUserIsAwayAndOnceThatTheyAreBack) {
    source.growFrom(0);
    monitor->start();
    time.advance(179);
    EXPECT_THAT(takeCalls(), IsEmpty());
    time.advance(121);
    EXPECT_THAT(takeCalls(), ElementsAre("away 180"));
    source.touch();
    time.advance(kPoll);
    // The counter that fell brings both: the end of the known absence, and nothing else.
    EXPECT_THAT(takeCalls(), ElementsAre("back"));
    time.advance(60);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(IdleMonitorTest, FindsAnAbsenceThatEndedBetweenTwoReadings) {
    source.fix(170);
    monitor->start();
    source.fix(2);
    time.advance(kPoll);
    EXPECT_THAT(takeCalls(), ElementsAre("away 180", "back"));
    EXPECT_FALSE(monitor->isIdle());
}

TEST_F(IdleMonitorTest, FindsNoAbsenceWhereItFellShortOfTheThreshold) {
    source.fix(169);
    monitor->start();
    source.fix(2);
    time.advance(kPoll);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(IdleMonitorTest, TakesAFallOfHalfASecondForJitter) {
    source.fix(175);
    monitor->start();
    source.fix(174.5);
    time.advance(kPoll);
    EXPECT_THAT(takeCalls(), IsEmpty());
    source.fix(173.875);
    time.advance(kPoll);
    EXPECT_THAT(takeCalls(), ElementsAre("away 184.5", "back"));
}

TEST_F(IdleMonitorTest, TellsOfASecondAbsenceThatFollowedTheFirstAtOnce) {
    source.fix(400);
    monitor->start();
    takeCalls();
    // A single touch long ago: the machine was suspended, and the timers with it.
    time.shiftWall(3600);
    source.fix(200);
    time.advance(kPoll);
    EXPECT_THAT(takeCalls(), ElementsAre("back", "away 200"));
}

TEST_F(IdleMonitorTest, CountsNoNegativeTimeWhenTheClockWasSetBack) {
    source.fix(170);
    monitor->start();
    time.shiftWall(-3600);
    source.fix(2);
    time.advance(kPoll);
    EXPECT_THAT(takeCalls(), IsEmpty());
    source.fix(185);
    time.advance(kPoll);
    takeCalls();
    time.shiftWall(-3600);
    source.fix(2);
    time.advance(kPoll);
    EXPECT_THAT(takeCalls(), ElementsAre("back"));
}

// What can be confirmed

TEST_F(IdleMonitorTest, ConfirmsAStretchOfSteadyWork) {
    monitor->start();
    workFor(30 * 60);
    for (const int minutes : {1, 5, 30})
        EXPECT_TRUE(monitor->wasActiveForLast(minutes));
    EXPECT_FALSE(monitor->wasActiveForLast(31));
    EXPECT_EQ(monitor->coverageMinutes(time.now()), 30);
}

TEST_F(IdleMonitorTest, ConfirmsNoMinutesAndNoNegativeOnes) {
    monitor->start();
    workFor(600);
    for (const int minutes : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_FALSE(monitor->wasActiveForLast(minutes));
    EXPECT_FALSE(monitor->wasActiveForLast(std::numeric_limits<int>::max()));
}

TEST_F(IdleMonitorTest, KeepsFortyFiveMinutesAndConfirmsNoMore) {
    monitor->start();
    workFor(3 * 3600);
    EXPECT_EQ(monitor->sampleCount(), 271U);
    EXPECT_EQ(monitor->coverageMinutes(time.now()), 45);
    EXPECT_TRUE(monitor->wasActiveForLast(45));
    EXPECT_FALSE(monitor->wasActiveForLast(46));
}

TEST_F(IdleMonitorTest, RefusesAStretchWithAnAbsenceAnywhereInIt) {
    monitor->start();
    workFor(600);
    source.growFrom(0);
    time.advance(200);
    workFor(600);
    EXPECT_TRUE(monitor->wasActiveForLast(9));
    EXPECT_FALSE(monitor->wasActiveForLast(11));
    EXPECT_FALSE(monitor->wasActiveForLast(20));
}

TEST_F(IdleMonitorTest, RefusesWhenTheUserHasLeftSinceTheLastReading) {
    setThreshold(10);
    source.fix(1);
    monitor->start();
    time.advance(120);
    EXPECT_TRUE(monitor->wasActiveForLast(1));
    source.fix(10);
    EXPECT_FALSE(monitor->wasActiveForLast(1));
}

TEST_F(IdleMonitorTest, RefusesAStretchInWhichTheClockWasSetBack) {
    monitor->start();
    workFor(600);
    time.shiftWall(-60);
    workFor(120);
    EXPECT_FALSE(monitor->wasActiveForLast(1));
    EXPECT_FALSE(monitor->wasActiveForLast(5));
    workFor(240);
    EXPECT_TRUE(monitor->wasActiveForLast(1));
}

// Counters that do not tell

TEST_F(IdleMonitorTest, TakesAnUnknownCounterForNeitherAbsenceNorPresence) {
    source.becomeUnknown();
    monitor->start();
    time.advance(3600);
    EXPECT_EQ(monitor->sampleCount(), 0U);
    EXPECT_EQ(monitor->coverageMinutes(time.now()), 0);
    EXPECT_FALSE(monitor->isIdle());
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_FALSE(monitor->wasActiveForLast(1));
}

TEST_F(IdleMonitorTest, LeavesAUserWhoIsAwayAwayWhileTheCounterIsUnknown) {
    source.fix(500);
    monitor->start();
    takeCalls();
    source.becomeUnknown();
    time.advance(60);
    EXPECT_TRUE(monitor->isIdle());
    EXPECT_THAT(takeCalls(), IsEmpty());
    source.fix(1);
    time.advance(kPoll);
    EXPECT_THAT(takeCalls(), ElementsAre("back"));
}

TEST_F(IdleMonitorTest, EndsAPauseOfSleepingScreensWhenTheyWakeWithoutACounter) {
    source.becomeUnknown();
    monitor->start();
    screens.sleep();
    time.advance(600);
    EXPECT_THAT(takeCalls(), ElementsAre("screens slept"));
    screens.wake();
    EXPECT_THAT(takeCalls(), ElementsAre("back", "screens woke"));
    EXPECT_FALSE(monitor->isIdle());
}

TEST_F(IdleMonitorTest, ConfirmsNothingOnceTheCounterIsUnknown) {
    monitor->start();
    workFor(600);
    EXPECT_TRUE(monitor->wasActiveForLast(5));
    source.becomeUnknown();
    EXPECT_FALSE(monitor->wasActiveForLast(5));
}

TEST_F(IdleMonitorTest, ConfirmsNoStretchInWhichTheCounterWasUnknown) {
    monitor->start();
    workFor(600);
    source.becomeUnknown();
    time.advance(600);
    workFor(600);
    EXPECT_TRUE(monitor->wasActiveForLast(9));
    EXPECT_FALSE(monitor->wasActiveForLast(11));
    EXPECT_FALSE(monitor->wasActiveForLast(25));
}

TEST_F(IdleMonitorTest, TakesACounterThatIsNoNumberForUnknown) {
    monitor->start();
    source.fix(std::numeric_limits<double>::quiet_NaN());
    time.advance(kPoll);
    source.fix(std::numeric_limits<double>::infinity());
    time.advance(kPoll);
    EXPECT_EQ(monitor->sampleCount(), 1U);
    EXPECT_FALSE(monitor->isIdle());
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_EQ(IdleMonitor::systemIdleSeconds(source), std::nullopt);
}

TEST_F(IdleMonitorTest, TakesANegativeCounterForInputJustNow) {
    source.fix(-2);
    EXPECT_EQ(IdleMonitor::systemIdleSeconds(source), 0.0);
    monitor->start();
    time.advance(120);
    EXPECT_TRUE(monitor->wasActiveForLast(2));
    EXPECT_THAT(takeCalls(), IsEmpty());
}

} // namespace
} // namespace vantle
