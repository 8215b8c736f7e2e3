#include "surfaces/menubar/MenuBarIcon.h"

#include "surfaces/menubar/MenuBarDrawing.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

constexpr std::uint32_t kBuild = 0x7A78FF;
constexpr std::uint32_t kDesign = 0xBF5AF2;
constexpr int kSizes[] = {16, 18, 22, 24, 32, 36, 48, 54};

QImage imageOf(const QIcon& icon, int pixels) {
    return icon.pixmap(QSize(pixels, pixels), 1.0)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

TEST(MenuBarIcon, HoldsEverySizeAsDrawnAndNotScaled) {
    MenuBarIcon icons;
    for (const int pixels : kSizes) {
        EXPECT_EQ(imageOf(icons.brick(), pixels), menubar::drawBrick(pixels)) << pixels;
        EXPECT_EQ(imageOf(icons.statusDot(kBuild, 5, false), pixels),
                  menubar::drawStatusDot(pixels, kBuild, 5, false))
            << pixels;
    }
}

TEST(MenuBarIcon, MarksTheWallAloneAsATemplate) {
    MenuBarIcon icons;
    EXPECT_TRUE(icons.brick().isMask());
    EXPECT_FALSE(icons.statusDot(kBuild, 0, false).isMask());
    EXPECT_FALSE(icons.statusDot(kBuild, 0, true).isMask());
}

TEST(MenuBarIcon, DrawsAnImageOnceAndThenLooksItUp) {
    MenuBarIcon icons;
    const qint64 first = icons.statusDot(kBuild, 3, false).cacheKey();
    EXPECT_EQ(icons.statusDot(kBuild, 3, false).cacheKey(), first);
    EXPECT_NE(icons.statusDot(kBuild, 4, false).cacheKey(), first);
    EXPECT_NE(icons.statusDot(kDesign, 3, false).cacheKey(), first);
}

TEST(MenuBarIcon, KeepsNineImagesOfAColourAtMost) {
    MenuBarIcon icons;
    for (const std::uint32_t color : {kBuild, kDesign})
        for (int round = 0; round < 3; ++round)
            for (int phase = 0; phase < menubar::kPhases; ++phase)
                for (const bool paused : {false, true})
                    (void)icons.statusDot(color, phase, paused);
    EXPECT_EQ(icons.dotCount(), 2 * 9);
}

TEST(MenuBarIcon, TellsAPausedDotFromOneThatBreathes) {
    MenuBarIcon icons;
    EXPECT_NE(imageOf(icons.statusDot(kBuild, 0, true), 18),
              imageOf(icons.statusDot(kBuild, 0, false), 18));
}

} // namespace
} // namespace vantle
