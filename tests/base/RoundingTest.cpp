#include "base/Rounding.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

TEST(Rounding, TruncatesTowardZero) {
    EXPECT_EQ(truncatedToInteger(59.999), 59);
    EXPECT_EQ(truncatedToInteger(-59.999), -59);
    EXPECT_EQ(truncatedToInteger(-0.5), 0);
}

TEST(Rounding, RoundsToNearestWithHalvesAwayFromZero) {
    EXPECT_EQ(roundedToInteger(2.5), 3);
    EXPECT_EQ(roundedToInteger(-2.5), -3);
    EXPECT_EQ(roundedToInteger(2.4999999999999996), 2);
    EXPECT_EQ(roundedToInteger(0.49999999999999994), 0) << "the double right below a half";
}

TEST(Rounding, StopsAtTheEndsOfTheInteger) {
    EXPECT_EQ(truncatedToInteger(9223372036854775808.0), kMost);
    EXPECT_EQ(truncatedToInteger(9223372036854774784.0), 9223372036854774784)
        << "the largest double that fits";
    EXPECT_EQ(truncatedToInteger(-9223372036854775808.0), kLeast);
    EXPECT_EQ(truncatedToInteger(-9223372036854777856.0), kLeast);
    EXPECT_EQ(roundedToInteger(std::numeric_limits<double>::infinity()), kMost);
    EXPECT_EQ(roundedToInteger(-std::numeric_limits<double>::infinity()), kLeast);
}

TEST(Rounding, TreatsNaNAsZero) {
    EXPECT_EQ(truncatedToInteger(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(roundedToInteger(std::numeric_limits<double>::quiet_NaN()), 0);
}

} // namespace
} // namespace vantle
