#include "surfaces/kit/tokens/ColorMath.h"

#include <gtest/gtest.h>

namespace vantle::colormath {
namespace {

constexpr std::uint32_t kPalette[] = {0xFF375F, 0xFF9F0A, 0x7A78FF, 0x30D158, 0x64D2FF,
                                      0xFFD60A, 0xBF5AF2, 0xFF6482, 0x40C8E0, 0xACF35C};

TEST(ColorMath, HexNamesAnOpaqueColour) {
    EXPECT_EQ(fromHex(0x7A78FF), QColor(0x7A, 0x78, 0xFF));
    EXPECT_EQ(fromHex(0x7A78FF).alpha(), 255);
}

TEST(ColorMath, LighteningGoesTowardsWhiteAndKeepsTheOpacity) {
    EXPECT_EQ(glassLightened(fromHex(0x000000), 0.5).red(), 128);
    EXPECT_EQ(glassLightened(fromHex(0x7A78FF), 0.0), fromHex(0x7A78FF));
    EXPECT_EQ(glassLightened(fromHex(0x7A78FF), 1.0), QColor(Qt::white));
    EXPECT_EQ(glassLightened(QColor(0, 0, 0, 51), 0.5).alpha(), 51);
}

TEST(ColorMath, ContrastOfBlackOnWhiteIsTheGreatest) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21.0, 0.01);
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21.0, 0.01);
    EXPECT_NEAR(contrast(Qt::red, Qt::red), 1.0, 0.01);
}

TEST(ColorMath, EveryColourOfThePaletteTakesInkThatCanBeRead) {
    for (const std::uint32_t hex : kPalette) {
        EXPECT_EQ(inkOn(fromHex(hex)), fromHex(0x0A0A0F)) << std::hex << hex;
        EXPECT_GT(contrast(inkOn(fromHex(hex)), fromHex(hex)), 4.5) << std::hex << hex;
    }
}

TEST(ColorMath, ADarkColourTakesWhite) { EXPECT_EQ(inkOn(fromHex(0x3A1060)), QColor(Qt::white)); }

} // namespace
} // namespace vantle::colormath
