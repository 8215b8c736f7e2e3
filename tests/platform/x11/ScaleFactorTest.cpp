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

TEST(ScaleFactor, NumberOfNoMonitorStaysAsItIs) {
    for (const double dpi : {96.0 * 65 + 1, 96.0 * 3e9 + 1, 1e300})
        EXPECT_EQ(settledDpi(dpi), std::nullopt) << dpi;
}

TEST(ScaleFactor, DotsAreANumberAmongTheResources) {
    EXPECT_EQ(dpiAmong("Xcursor.size:\t24\nXft.dpi:\t144\n"), 144.0);
    EXPECT_EQ(dpiAmong("Xft.dpi: much\nXft.dpi: 120"), 120.0);
    for (const char* none : {"", "Xft.dpi", "Xft.dpi: 0", "Xft.dpi: -96", "Xft.dpi: inf",
                             "Xft.dpi: nan", "Xft.dpi.x: 96"})
        EXPECT_EQ(dpiAmong(none), std::nullopt) << none;
}

} // namespace
} // namespace vantle::scalefactor
