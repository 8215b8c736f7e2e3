#include "launch/WishedTextScale.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

TEST(WishedTextScale, TextGrowsByTheWishWhereTheScreenDoesNot) {
    WishedTextScale scale(1.0);
    EXPECT_DOUBLE_EQ(scale.beyondScreen(1.0), 1.0);
    EXPECT_DOUBLE_EQ(scale.beyondScreen(1.25), 1.25);
    EXPECT_DOUBLE_EQ(scale.beyondScreen(1.0), 1.0);
}

TEST(WishedTextScale, WishThatTheScreenIsDrawnByIsNotDoneTwice) {
    for (const double screen : {1.25, 2.5}) {
        WishedTextScale scale(screen);
        EXPECT_DOUBLE_EQ(scale.beyondScreen(1.0), 1.0); // before the desktop has answered
        EXPECT_DOUBLE_EQ(scale.beyondScreen(1.25), 1.0);
        EXPECT_DOUBLE_EQ(scale.beyondScreen(1.5), 1.2);
        EXPECT_DOUBLE_EQ(scale.beyondScreen(1.0), 0.8);
    }
}

} // namespace
} // namespace vantle
