// What the log holds of a session in which the user talks or watches instead of typing.
#include "launch/AppDelegateWorld.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

constexpr double kMinute = 60;
constexpr double kHour = 3600;
constexpr double kPoll = 10; // between two readings of the counter

class CallsTest : public testing::Test, protected AppDelegateWorld {
protected:
    void launch(bool callsCount) {
        settings::callsCount.write(preferences, callsCount);
        app = makeCopy(true);
        ASSERT_TRUE(app->applicationDidFinishLaunching());
        time.settle();
        idleSource.touch();
    }
    void toggle() {
        app->performAction(text("toggle"));
        ioQueue.runDry();
        time.settle();
    }
    [[nodiscard]] TrackerCore& tracker() { return app->model()->tracker(); }
    /// The active seconds of the only session in the log.
    [[nodiscard]] std::int64_t logged() {
        const auto sessions = log();
        EXPECT_EQ(sessions.size(), 1U);
        return sessions.empty() ? -1 : sessions.front().activeSeconds;
    }

    std::unique_ptr<AppDelegate> app;
};

TEST_F(CallsTest, MeetingWithoutAKeyPressedCountsWhole) {
    launch(true);
    toggle();
    idleInhibition.hold(true);
    time.advance(90 * kMinute);
    EXPECT_EQ(tracker().state(), TrackerCore::State::Running);
    EXPECT_EQ(tracker().displayActiveSeconds(), 90 * 60);
    toggle();
    EXPECT_EQ(logged(), 90 * 60);
}

TEST_F(CallsTest, MeetingIsAnAbsenceUntilTheUserSwitchesItOn) {
    launch(false);
    toggle();
    idleInhibition.hold(true);
    time.advance(90 * kMinute);
    EXPECT_EQ(tracker().state(), TrackerCore::State::Paused);
    toggle();
    EXPECT_LE(logged(), 1);
}

TEST_F(CallsTest, AbsenceAfterAMeetingIsCutOutBackToItsEnd) {
    launch(true);
    toggle();
    idleInhibition.hold(true);
    time.advance(30 * kMinute + 7);
    idleInhibition.hold(false);
    time.advance(20 * kMinute);
    EXPECT_EQ(tracker().state(), TrackerCore::State::Paused);
    toggle();
    EXPECT_NEAR(static_cast<double>(logged()), 30 * kMinute + 7, 1);
}

TEST_F(CallsTest, ForgottenCallCountsFourHoursAndNoMore) {
    launch(true);
    toggle();
    idleInhibition.hold(true);
    time.advance(11 * kHour);
    EXPECT_EQ(tracker().state(), TrackerCore::State::Paused);
    EXPECT_NEAR(static_cast<double>(tracker().displayActiveSeconds()), 4 * kHour, 1);
    toggle();
    EXPECT_NEAR(static_cast<double>(logged()), 4 * kHour, 1);
}

TEST_F(CallsTest, InputAfterTheFourHoursResumesAndCounts) {
    launch(true);
    toggle();
    idleInhibition.hold(true);
    time.advance(5 * kHour);
    idleSource.touch();
    time.advance(2 * kMinute);
    EXPECT_EQ(tracker().state(), TrackerCore::State::Running);
    toggle();
    EXPECT_NEAR(static_cast<double>(logged()), 4 * kHour + 2 * kMinute, kPoll + 1);
}

TEST_F(CallsTest, CallBehindALockedScreenDoesNotCount) {
    launch(true);
    toggle();
    idleInhibition.hold(true);
    time.advance(10 * kMinute);
    screenPower.sleep();
    time.advance(kHour);
    EXPECT_EQ(tracker().state(), TrackerCore::State::Paused);
    screenPower.wake();
    time.advance(5 * kMinute);
    toggle();
    EXPECT_EQ(logged(), 15 * 60);
}

TEST_F(CallsTest, SessionMayBeginBackInACall) {
    launch(true);
    idleInhibition.hold(true);
    time.advance(40 * kMinute);
    const Date pressed = time.now();
    app->model()->startWithBackfill(20);
    ioQueue.runDry();
    time.settle();
    EXPECT_EQ(tracker().displayActiveSeconds(), 20 * 60);
    toggle();
    ASSERT_EQ(log().size(), 1U);
    EXPECT_EQ(log().front().startedAt, pressed - Seconds(20 * kMinute));
}

TEST_F(CallsTest, SessionCannotBeginBackInACallThatDoesNotCount) {
    launch(false);
    idleInhibition.hold(true);
    time.advance(40 * kMinute);
    app->model()->startWithBackfill(20);
    EXPECT_EQ(tracker().displayActiveSeconds(), 0);
}

} // namespace
} // namespace vantle::tests
