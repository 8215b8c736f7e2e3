#include "platform/x11/ScaleFactor.h"

#include <gtest/gtest.h>

namespace vantle::scalefactor {
namespace {

TEST(ScaleFactor, NextToAWholeNumberIsThatNumber) {
    EXPECT_EQ(settledDpi(99), 96);
    EXPECT_EQ(settledDpi(100), 96);
    EXPECT_EQ(settledDpi(105), 96);
    EXPECT_EQ(settledDpi(87), 96);
    EXPECT_EQ(settledDpi(190), 192);
    EXPECT_EQ(settledDpi(200), 192);
    EXPECT_EQ(settledDpi(290), 288);
}

TEST(ScaleFactor, WholeOnesAndThoseBetweenStayAsTheyAre) {
    for (const double dpi : {96.0, 192.0, 108.0, 120.0, 144.0, 168.0, 216.0, 240.0, 80.0, 4.0})
        EXPECT_EQ(settledDpi(dpi), std::nullopt) << dpi;
}

} // namespace
} // namespace vantle::scalefactor
