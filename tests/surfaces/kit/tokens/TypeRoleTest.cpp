#include "surfaces/kit/tokens/TypeRole.h"

#include <QVariant>

#include <gtest/gtest.h>

namespace vantle {
namespace {

constexpr double kFontUnit = 1.0 / 64; // fonts keep lengths in these

TEST(TypeRole, TrackingIsAPartOfTheSize) {
    DisplayRole role;
    role.setProperty("size", 40);
    role.setProperty("tracking", -0.015);
    EXPECT_EQ(role.font().pixelSize(), 40);
    EXPECT_EQ(role.font().weight(), QFont::DemiBold);
    EXPECT_EQ(role.font().letterSpacingType(), QFont::AbsoluteSpacing);
    EXPECT_NEAR(role.font().letterSpacing(), -0.6, kFontUnit);
}

TEST(TypeRole, LargerTextIsLargerInSizeAndLine) {
    TypeRole role;
    role.setProperty("size", 13);
    role.setProperty("line", 20);
    role.setScale(1.5);
    EXPECT_EQ(role.property("size").toInt(), 20);
    EXPECT_EQ(role.property("line").toInt(), 30);
    EXPECT_EQ(role.font().pixelSize(), 20);
}

TEST(TypeRole, TheSpaceOfALineIsAboveAndBelowTheLetters) {
    TypeRole role;
    role.setProperty("size", 13);
    role.setProperty("line", 20);
    EXPECT_GE(role.leading(), 1.0);
    EXPECT_LE(role.leading(), 3.0);
    role.setProperty("line", 10);
    EXPECT_LT(role.leading(), 0.0);
}

} // namespace
} // namespace vantle
