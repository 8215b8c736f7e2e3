// Starts that fail, which needs a marker with a date that cannot be written: a clock beyond the
// year 9999.
#include "app/ModelWorld.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using State = TrackerCore::State;

/// Seconds from any date to a year with five digits.
constexpr double kBeyondDates = 3e11;

class AppModelFailedStartTest : public testing::Test {
protected:
    AppModel& launched() { return world.launch(); }

    ModelWorld world;
};

TEST_F(AppModelFailedStartTest, FailedStartShowsTheReasonAndCountsNothing) {
    AppModel& model = launched();
    world.time.shiftWall(kBeyondDates);
    world.told.calls.clear();
    world.press();
    EXPECT_EQ(model.tracker().state(), State::Idle);
    EXPECT_TRUE(world.note().startsWith(text("Couldn’t save your hours.")))
        << world.note().toStdString();
    EXPECT_FALSE(world.hasMarker());
    EXPECT_EQ(world.told.calls, QStringList());
    world.time.shiftWall(-kBeyondDates);
    world.press();
    EXPECT_EQ(model.tracker().state(), State::Running);
    EXPECT_EQ(world.note(), QString());
}

TEST_F(AppModelFailedStartTest, BackdatedFailedStartShowsTheReasonAndCountsNothing) {
    AppModel& model = launched();
    world.time.shiftWall(kBeyondDates);
    world.told.calls.clear();
    model.startWithBackfill(10);
    EXPECT_EQ(model.tracker().state(), State::Idle);
    EXPECT_TRUE(world.note().startsWith(text("Couldn’t save your hours.")))
        << world.note().toStdString();
    EXPECT_FALSE(world.hasMarker());
    EXPECT_EQ(world.told.calls, QStringList());
}

TEST_F(AppModelFailedStartTest, SplitWithAFailedSecondHalfKeepsTheFirstAndEndsTheSession) {
    AppModel& model = launched();
    world.linkShortcuts();
    world.frontmost.application = Application{text("editor"), text("Editor")};
    world.press();
    EXPECT_EQ(model.sessionBundleId(), text("editor"));
    world.time.advance(90.0);
    world.told.calls.clear();
    // Sets the clock between the end of the first half and the start of the second.
    QObject::connect(&model.tracker(), &TrackerCore::stateChanged, &model, [&] {
        if (model.tracker().state() == State::Idle &&
            world.time.now().time_since_epoch().count() < kBeyondDates)
            world.time.shiftWall(kBeyondDates);
    });
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(model.tracker().state(), State::Idle);
    ASSERT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.log().front().activeSeconds, 90);
    EXPECT_EQ(world.log().front().skillId, text("building"));
    EXPECT_FALSE(world.hasMarker());
    EXPECT_TRUE(world.note().startsWith(text("Couldn’t save your hours.")))
        << world.note().toStdString();
    EXPECT_EQ(world.told.calls,
              (QStringList{text("focus ended"), text("notch idle marketing flash 0")}));
    EXPECT_EQ(model.sessionBundleId(), std::nullopt);
}

} // namespace
} // namespace vantle::tests
