#include "sensing/CallPresence.h"

#include "fakes/FakeIdleInhibition.h"
#include "fakes/FakeIdleSource.h"
#include "fakes/FakeScreenPower.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "sensing/IdleMonitor.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

#include <vector>

namespace vantle {
namespace {

constexpr double kHour = 3600;

class CallPresenceTest : public testing::Test {
protected:
    CallPresenceTest() {
        m_monitor.onIdleBegan = [this](double seconds) { m_away.push_back(seconds); };
        m_monitor.onActivityResumed = [this] { ++m_returns; };
    }
    void count(bool counts = true) { settings::callsCount.write(m_preferences, counts); }
    [[nodiscard]] std::optional<double> reading() { return m_presence.secondsSinceLastInput(); }
    /// The last input is that long ago, and the monitor has looked all the while.
    void leaveFor(double seconds) {
        m_desktop.touch();
        m_time.advance(seconds);
    }

    fakes::VirtualTime m_time;
    fakes::MemoryPreferences m_preferences;
    fakes::FakeIdleSource m_desktop{m_time};
    fakes::FakeIdleInhibition m_calls;
    fakes::FakeScreenPower m_screens;
    CallPresence m_presence{m_time, m_preferences, m_desktop, m_calls};
    IdleMonitor m_monitor{m_time, m_time, m_presence, m_screens, m_preferences};
    std::vector<double> m_away;
    int m_returns = 0;
};

TEST_F(CallPresenceTest, OffAtFirstAndNoServiceIsAskedAboutCalls) {
    m_calls.hold(true);
    m_monitor.start();
    leaveFor(600);
    EXPECT_FALSE(m_calls.isFollowed);
    EXPECT_EQ(reading(), 600);
    EXPECT_EQ(m_away.size(), 1U);
}

TEST_F(CallPresenceTest, TheUserIsNotAwayInACall) {
    count();
    m_monitor.start();
    m_calls.hold(true);
    leaveFor(kHour);
    EXPECT_EQ(reading(), 0);
    EXPECT_TRUE(m_away.empty());
}

TEST_F(CallPresenceTest, AbsenceAfterACallBeginsWithItsEnd) {
    count();
    m_monitor.start();
    m_calls.hold(true);
    leaveFor(kHour);
    m_calls.hold(false);
    m_time.advance(170);
    EXPECT_TRUE(m_away.empty());
    m_time.advance(30);
    ASSERT_EQ(m_away.size(), 1U);
    EXPECT_NEAR(m_away[0], 190, IdleMonitor::pollInterval);
}

TEST_F(CallPresenceTest, InputAfterACallCountsFromItself) {
    count();
    m_monitor.start();
    m_calls.hold(true);
    leaveFor(kHour);
    m_calls.hold(false);
    m_time.advance(100);
    m_desktop.touch();
    m_time.advance(20);
    EXPECT_EQ(reading(), 20);
}

TEST_F(CallPresenceTest, CallThatBringsTheUserBackEndsTheAbsence) {
    count();
    m_monitor.start();
    leaveFor(600);
    ASSERT_EQ(m_away.size(), 1U);
    m_calls.hold(true);
    m_time.advance(10);
    EXPECT_EQ(m_returns, 1);
}

TEST_F(CallPresenceTest, FourHoursInARowAreTheMost) {
    count();
    m_monitor.start();
    m_calls.hold(true);
    leaveFor(4 * kHour);
    EXPECT_TRUE(m_away.empty());
    m_time.advance(200);
    ASSERT_EQ(m_away.size(), 1U);
    EXPECT_LT(m_away[0], 210) << "the four hours stay counted";
    m_time.advance(kHour);
    EXPECT_EQ(m_away.size(), 1U);
    EXPECT_NEAR(reading().value_or(0), kHour + 200, 11);
}

TEST_F(CallPresenceTest, NextCallHasFourHoursOfItsOwn) {
    count();
    m_monitor.start();
    m_calls.hold(true);
    leaveFor(3 * kHour);
    m_calls.hold(false);
    m_time.advance(120);
    m_calls.hold(true);
    m_time.advance(3 * kHour);
    EXPECT_TRUE(m_away.empty());
}

TEST_F(CallPresenceTest, ListOfVideosIsOneRow) {
    count();
    m_monitor.start();
    m_desktop.touch();
    for (int video = 0; video < 12; ++video) {
        m_calls.hold(true);
        m_time.advance(0.5 * kHour - 20);
        m_calls.hold(false);
        m_time.advance(20);
    }
    ASSERT_EQ(m_away.size(), 1U);
    EXPECT_LT(m_away[0], 200) << "the four hours stay counted";
    EXPECT_NEAR(reading().value_or(0), 2 * kHour, 11);
}

TEST_F(CallPresenceTest, CallBetweenTwoReadingsCounts) {
    count();
    m_monitor.start();
    leaveFor(172);
    m_calls.hold(true);
    m_time.advance(2);
    m_calls.hold(false);
    m_time.advance(5);
    EXPECT_EQ(reading(), 5);
}

TEST_F(CallPresenceTest, CallBehindALockedScreenIsNoReturn) {
    count();
    m_monitor.start();
    int woken = 0;
    m_monitor.onScreensWoke = [&woken] { ++woken; };
    m_desktop.touch();
    m_calls.hold(true);
    m_screens.sleep();
    m_time.advance(kHour);
    EXPECT_EQ(woken, 0);
    EXPECT_TRUE(m_monitor.isIdle());
    EXPECT_FALSE(m_monitor.wasActiveForLast(30));
    m_screens.wake();
    EXPECT_EQ(woken, 1);
    EXPECT_FALSE(m_monitor.isIdle());
}

TEST_F(CallPresenceTest, CallProvesPresenceForBackdating) {
    m_monitor.start();
    m_calls.hold(true);
    leaveFor(1200);
    EXPECT_FALSE(m_monitor.wasActiveForLast(10));
    count();
    m_time.advance(1200);
    EXPECT_TRUE(m_monitor.wasActiveForLast(10));
}

TEST_F(CallPresenceTest, InhibitorThatTheCompositorShowsCountsWhereItsCounterIsSilent) {
    count();
    m_desktop.becomeUnknown();
    EXPECT_EQ(reading(), std::nullopt) << "an empty reading alone is no call";
    m_desktop.showInhibitor(true);
    EXPECT_EQ(reading(), 0);
    m_desktop.showInhibitor(false);
    EXPECT_EQ(reading(), std::nullopt);
}

TEST_F(CallPresenceTest, WhereNothingTellsInputACallProvesNothing) {
    count();
    m_desktop.setCanTell(false);
    m_calls.hold(true);
    EXPECT_EQ(reading(), std::nullopt);
}

TEST_F(CallPresenceTest, SwitchedOffTheReadingIsTheDesktopsAtOnce) {
    count();
    m_calls.hold(true);
    m_monitor.start();
    leaveFor(600);
    count(false);
    EXPECT_EQ(reading(), 600);
    EXPECT_FALSE(m_calls.isFollowed);
}

} // namespace
} // namespace vantle
