#include "review/WrappedMotion.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vantle {
namespace {

using namespace wrappedmotion;

TEST(WrappedMotion, FigureCountsUpAndStaysAtItsEnd) {
    EXPECT_EQ(countUp(12.5, 0), 0);
    EXPECT_EQ(countUp(12.5, -1), 0);
    EXPECT_NEAR(countUp(12.5, 0.4), 10.9375, 1e-12);
    EXPECT_EQ(countUp(12.5, 0.8), 12.5);
    EXPECT_EQ(countUp(12.5, 60), 12.5);
    for (double t = 0; t < 0.8; t += 0.01)
        EXPECT_LE(countUp(12.5, t), countUp(12.5, t + 0.01));
}

TEST(WrappedMotion, NoHoursStandThereAtOnce) {
    EXPECT_EQ(countUp(0, 0), 0);
    EXPECT_EQ(countUp(-1, 0), -1);
}

TEST(WrappedMotion, BurstComesFromTheCentreAndIsGoneAtTheEnd) {
    for (int i = 0; i < burstDots; ++i) {
        const BurstDot begins = burstDot(i, 0);
        EXPECT_EQ(begins.x, 0);
        EXPECT_EQ(begins.y, 0);
        EXPECT_EQ(begins.alpha, 0);
        EXPECT_EQ(burstDot(i, 0.5).alpha, 1);
        const BurstDot ends = burstDot(i, 1);
        EXPECT_EQ(ends.alpha, 0);
        const double flown = std::hypot(ends.x, ends.y - 12);
        EXPECT_GE(flown, 54 - 1e-9);
        EXPECT_LE(flown, 122 + 1e-9);
        EXPECT_GE(ends.radius, 1.8);
        EXPECT_LE(ends.radius, 3.6);
    }
}

TEST(WrappedMotion, AmbientDotsStayInTheWindowAndThreeInTenHaveAColour) {
    int colored = 0;
    for (int i = 0; i < ambientDots; ++i) {
        const AmbientDot dot = ambientDot(i);
        if (dot.group != AmbientDot::Group::White) ++colored;
        for (double t = 0; t < 100; t += 7.3) {
            const AmbientPlace now = place(dot, 440, 660, t);
            EXPECT_GE(now.x, -1);
            EXPECT_LE(now.x, 441);
            EXPECT_GE(now.y, -1);
            EXPECT_LE(now.y, 661);
            EXPECT_GE(now.twinkle, 0);
            EXPECT_LE(now.twinkle, 1);
        }
    }
    EXPECT_EQ(colored, 12);
    EXPECT_EQ(ambientDot(8).group, AmbientDot::Group::Accent);
    EXPECT_EQ(ambientDot(9).group, AmbientDot::Group::Rose);
}

TEST(WrappedMotion, StarCrossesInSomeSlotsOnlyAndNotForLong) {
    EXPECT_FALSE(shootingStar(0.5));
    EXPECT_FALSE(shootingStar(8.5));
    EXPECT_EQ(shootingStar(16.5), 0.5);
    EXPECT_TRUE(shootingStar(17.0625));
    EXPECT_FALSE(shootingStar(17.125));
}

TEST(WrappedMotion, ChildrenFollowEachOther) {
    EXPECT_DOUBLE_EQ(cascadeDelay(0), 0.05);
    EXPECT_DOUBLE_EQ(cascadeDelay(2), 0.2);
    EXPECT_DOUBLE_EQ(popDelay(2, 0.1), 0.24);
    EXPECT_DOUBLE_EQ(growDelay(2, 0.1), 0.22);
}

} // namespace
} // namespace vantle
