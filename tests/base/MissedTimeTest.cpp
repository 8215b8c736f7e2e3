// How sleep of the machine and a stopped program are told from time that merely passed.
#include "base/MissedTime.h"

#include "fakes/VirtualTime.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

class MissedTimeTest : public testing::Test {
protected:
    fakes::VirtualTime time;
    MissedTime missed{time, Seconds(10)};
};

TEST_F(MissedTimeTest, TimeThatPassesOnScheduleIsNotMissed) {
    EXPECT_FALSE(missed.sinceLastLook());
    time.advance(29.5);
    EXPECT_FALSE(missed.sinceLastLook()) << "late, as behind much work";
    missed.look();
    time.advance(29.5);
    EXPECT_FALSE(missed.sinceLastLook());
}

TEST_F(MissedTimeTest, ChangeOfTheWallClockIsNotMissedTime) {
    time.shiftWall(3600);
    EXPECT_FALSE(missed.sinceLastLook());
    time.shiftWall(-7200);
    EXPECT_FALSE(missed.sinceLastLook());
}

TEST_F(MissedTimeTest, SleepIsMissedFromTheLastLookOn) {
    time.advance(5);
    missed.look();
    const Date looked = time.now();
    time.advance(4);
    time.suspend(3600);
    time.advance(2);
    const auto stretch = missed.sinceLastLook();
    ASSERT_TRUE(stretch);
    EXPECT_EQ(stretch->from, looked);
    EXPECT_NEAR(stretch->length.count(), 3606, 1e-6);
    EXPECT_NEAR(stretch->awake.count(), 6, 1e-6);
    missed.look();
    EXPECT_FALSE(missed.sinceLastLook());
}

TEST_F(MissedTimeTest, SleepIsFoundUnderAWallClockThatWasSetBack) {
    time.suspend(3600);
    time.shiftWall(-3600);
    EXPECT_TRUE(missed.sinceLastLook());
}

TEST_F(MissedTimeTest, StoppedProgramMissesTheTimeUntilItRunsAgain) {
    time.freeze(31);
    const auto stretch = missed.sinceLastLook();
    ASSERT_TRUE(stretch);
    EXPECT_NEAR(stretch->awake.count(), 31, 1e-6);
}

TEST(SystemClock, UptimeGrowsAndCountsSleepOnTop) {
    const SystemClock clock;
    const auto first = clock.uptime();
    const auto second = clock.uptime();
    EXPECT_GT(first.awake.count(), 0);
    EXPECT_GE(second.awake, first.awake);
    EXPECT_GE(second.total.count() + 0.001, second.awake.count());
    const MissedTime missed(clock, Seconds(1));
    EXPECT_FALSE(missed.sinceLastLook());
}

} // namespace
} // namespace vantle
