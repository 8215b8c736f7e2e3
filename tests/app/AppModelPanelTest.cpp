#include "app/ModelWorld.h"
#include "app/WeeklyReview.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class AppModelPanelTest : public testing::Test {
protected:
    AppModel& launched() { return world.launch(); }

    ModelWorld world;
};

TEST_F(AppModelPanelTest, PanelStateTellsTheReviewAndTheCoverage) {
    AppModel& model = launched();
    world.time.advance(330.0);
    model.refreshPanelState();
    EXPECT_EQ(model.backfillCoverageMinutes(), 5);
    EXPECT_FALSE(model.wrappedReady());
    model.quickLog(text("building"), 5, QString());
    model.quickLog(text("building"), 5, QString());
    world.time.advance(Seconds(7 * 86400.0));
    model.refreshPanelState();
    EXPECT_TRUE(model.wrappedReady());
}

TEST_F(AppModelPanelTest, PanelOfAWeekThatWasSeenReadsNoLog) {
    AppModel& model = launched();
    const Calendar utc{text("UTC"), 2, 4};
    const auto week = weeklyreview::lastWeekInterval(world.time.now(), utc);
    ASSERT_TRUE(week);
    world.preferences.setBoolean(weeklyreview::wrappedSeenKey(week->start, utc), true);
    world.files.forgetCalls();
    model.refreshPanelState();
    EXPECT_TRUE(world.files.calls().empty());
}

TEST_F(AppModelPanelTest, PanelReadsTheLogOnceUntilItChanges) {
    AppModel& model = launched();
    model.quickLog(text("building"), 5, QString());
    world.time.advance(Seconds(7 * 86400.0));
    world.files.forgetCalls();
    model.refreshPanelState();
    EXPECT_FALSE(world.files.calls().empty());
    world.files.forgetCalls();
    model.refreshPanelState();
    EXPECT_TRUE(world.files.calls().empty());
    EXPECT_FALSE(model.wrappedReady());

    world.time.advance(Seconds(-7 * 86400.0));
    model.quickLog(text("building"), 5, QString());
    world.time.advance(Seconds(7 * 86400.0));
    model.refreshPanelState();
    EXPECT_TRUE(model.wrappedReady());
}

TEST_F(AppModelPanelTest, PanelOfTheNextWeekLooksAgain) {
    AppModel& model = launched();
    model.refreshPanelState();
    world.time.advance(Seconds(7 * 86400.0));
    world.files.forgetCalls();
    model.refreshPanelState();
    EXPECT_FALSE(world.files.calls().empty());
}

TEST_F(AppModelPanelTest, ButtonOfThePanelPulsesWithTheIntroductionOfTheCapsule) {
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

} // namespace
} // namespace vantle::tests
