// The panel's state alone, over a tracker and an idle monitor without a model.
#include "app/PanelState.h"

#include "app/WeeklyReview.h"
#include "fakes/FakeIdleSource.h"
#include "fakes/FakeScreenPower.h"
#include "sensing/IdleMonitor.h"
#include "support/Text.h"
#include "tracking/Settings.h"
#include "tracking/TrackingWorld.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

constexpr double kWeek = 7 * 86400.0;

class PanelStateTest : public testing::Test, protected TrackingWorld {
protected:
    void logByHand() { ASSERT_TRUE(tracker.logManual(text("building"), 5, QString())); }
    /// Looks at the panel again. Returns whether it had to read a file.
    [[nodiscard]] bool readsToRefresh() {
        time.settle();
        files.forgetCalls();
        panel.refresh();
        return !files.calls().empty();
    }

    Calendar calendar{text("UTC"), 2, 4};
    fakes::FakeIdleSource idleSource{time};
    fakes::FakeScreenPower screens;
    IdleMonitor idle{time, time, idleSource, screens, preferences};
    PanelState panel{
        {time, [this] { return calendar; }, preferences, process.notifications, tracker, idle}};
};

TEST_F(PanelStateTest, CoverageIsThatOfTheLastRefresh) {
    int told = 0;
    QObject::connect(&panel, &PanelState::backfillCoverageMinutesChanged, [&] { ++told; });
    idleSource.growFrom(0);
    idle.start();
    time.advance(330.0);
    EXPECT_EQ(panel.backfillCoverageMinutes(), 0);
    panel.refresh();
    EXPECT_EQ(panel.backfillCoverageMinutes(), 5);
    panel.refresh();
    EXPECT_EQ(told, 1);
}

TEST_F(PanelStateTest, PulseIsToldWhenItChanges) {
    int told = 0;
    QObject::connect(&panel, &PanelState::pulsePrimaryOnceChanged, [&] { ++told; });
    panel.setPulsePrimaryOnce(false);
    EXPECT_EQ(told, 0);
    panel.setPulsePrimaryOnce(true);
    panel.setPulsePrimaryOnce(true);
    EXPECT_EQ(told, 1);
}

TEST_F(PanelStateTest, ReviewIsDueInTheWeekAfterTwoSessions) {
    int told = 0;
    QObject::connect(&panel, &PanelState::wrappedReadyChanged, [&] { ++told; });
    logByHand();
    logByHand();
    panel.refresh();
    EXPECT_FALSE(panel.wrappedReady());
    time.advance(kWeek);
    panel.refresh();
    EXPECT_TRUE(panel.wrappedReady());
    EXPECT_EQ(told, 1);
}

TEST_F(PanelStateTest, ReviewIsDueForLastWeekAlone) {
    logByHand();
    logByHand();
    time.advance(2 * kWeek);
    panel.refresh();
    EXPECT_FALSE(panel.wrappedReady()) << "the week before the last";
    logByHand();
    logByHand();
    panel.refresh();
    EXPECT_FALSE(panel.wrappedReady()) << "this week";
}

TEST_F(PanelStateTest, WithoutWeeksNoReviewIsDueAndNoLogIsRead) {
    logByHand();
    logByHand();
    time.advance(kWeek);
    calendar.timeZone = text("No/Where");
    EXPECT_FALSE(readsToRefresh());
    EXPECT_FALSE(panel.wrappedReady());
}

TEST_F(PanelStateTest, WeekThatWasSeenReadsNoLog) {
    const auto week = weeklyreview::lastWeekInterval(time.now(), calendar);
    ASSERT_TRUE(week);
    settings::reviewSeen.write(preferences, weeklyreview::weekOf(week->start, calendar), true);
    EXPECT_FALSE(readsToRefresh());
}

TEST_F(PanelStateTest, LogIsReadOnceUntilItChanges) {
    logByHand();
    time.advance(kWeek);
    EXPECT_TRUE(readsToRefresh());
    EXPECT_FALSE(readsToRefresh());
    EXPECT_FALSE(panel.wrappedReady());

    time.advance(-kWeek);
    logByHand();
    time.advance(kWeek);
    EXPECT_TRUE(readsToRefresh());
    EXPECT_TRUE(panel.wrappedReady());
}

TEST_F(PanelStateTest, NextWeekIsLookedAtAgain) {
    EXPECT_TRUE(readsToRefresh());
    time.advance(kWeek);
    EXPECT_TRUE(readsToRefresh());
}

} // namespace
} // namespace vantle::tests
