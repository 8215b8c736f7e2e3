#include "surfaces/capsule/NotchMetrics.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

ScreenShape plain(QRectF frame = {0, 0, 1440, 900}) { return {.frame = frame, .available = frame}; }

/// A built-in display of 1512 by 982 with a housing of 184 by 32.
ScreenShape notched(QPointF place = {}) {
    ScreenShape screen = plain({place, QSizeF(1512, 982)});
    screen.safeAreaTop = 32;
    screen.auxiliaryTopLeft = QRectF(place, QSizeF(664, 32));
    screen.auxiliaryTopRight = QRectF(place + QPointF(848, 0), QSizeF(664, 32));
    return screen;
}

TEST(NotchMetrics, APlainScreenHasAStandInOf230) {
    const auto metrics = NotchMetrics::of(plain({100, 0, 1440, 900}), 68);
    EXPECT_FALSE(metrics.hasNotch);
    EXPECT_EQ(metrics.notchHeight, 0);
    EXPECT_EQ(metrics.notchWidth, 230);
    EXPECT_EQ(metrics.anchorCenterX, 820);
    EXPECT_EQ(metrics.capsuleHeight, 126);
    EXPECT_EQ(metrics.collapsedSize, QSizeF(198, 0.5));
    EXPECT_EQ(metrics.bottomRadius, 18);
}

TEST(NotchMetrics, ABarAtTheTopIsMeasuredFromTheScreensOwnEdge) {
    ScreenShape screen = plain({1440, 100, 800, 600});
    EXPECT_EQ(NotchMetrics::of(screen, 0).topBar, 0);
    screen.available = QRectF(1440, 132, 800, 540); // and one at the bottom
    EXPECT_EQ(NotchMetrics::of(screen, 0).topBar, 32);
    screen.available = QRectF(); // not known
    EXPECT_EQ(NotchMetrics::of(screen, 0).topBar, 0);
}

TEST(NotchMetrics, AHousingReachesIntoTheBar) {
    ScreenShape screen = notched();
    screen.available.setTop(32);
    EXPECT_EQ(NotchMetrics::of(screen, 0).topBar, 0);
}

TEST(NotchMetrics, ANotchedScreenGivesItsHousing) {
    const auto metrics = NotchMetrics::of(notched(), 68);
    EXPECT_TRUE(metrics.hasNotch);
    EXPECT_EQ(metrics.notchHeight, 32);
    EXPECT_EQ(metrics.notchWidth, 184);
    EXPECT_EQ(metrics.anchorCenterX, 756);
    EXPECT_EQ(metrics.capsuleHeight, 158);
    EXPECT_EQ(metrics.collapsedSize, QSizeF(184, 32));
    EXPECT_EQ(metrics.bottomRadius, 12);
}

TEST(NotchMetrics, ASafeAreaWithoutAuxiliaryAreasCountsAsPlain) {
    ScreenShape screen = notched();
    screen.auxiliaryTopRight.reset();
    EXPECT_FALSE(NotchMetrics::hasHousing(screen));
    screen.auxiliaryTopLeft.reset();
    EXPECT_FALSE(NotchMetrics::of(screen, 0).hasNotch);
    EXPECT_EQ(NotchMetrics::of(screen, 0).notchWidth, 230);
}

TEST(NotchMetrics, AuxiliaryAreasWithoutAGapOrASafeAreaCountAsPlain) {
    ScreenShape touching = notched();
    touching.auxiliaryTopRight = QRectF(664, 0, 848, 32);
    EXPECT_FALSE(NotchMetrics::hasHousing(touching));
    ScreenShape unsafe = notched();
    unsafe.safeAreaTop = 0;
    EXPECT_FALSE(NotchMetrics::hasHousing(unsafe));
}

TEST(NotchMetrics, TheNotchedDisplayGetsTheCapsuleEvenWhenAnotherIsTheMainOne) {
    EXPECT_EQ(NotchMetrics::chooseScreen({plain(), plain(), notched({1440, 0})}), 2U);
}

TEST(NotchMetrics, WithoutANotchTheMainScreenGetsIt) {
    EXPECT_EQ(NotchMetrics::chooseScreen({plain(), plain({1440, 0, 800, 600})}), 0U);
    EXPECT_EQ(NotchMetrics::chooseScreen({}), std::nullopt);
}

} // namespace
} // namespace vantle::tests
