#include "surfaces/capsule/CapsuleGeometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vantle::tests {
namespace {

const ScreenShape kScreen{.frame = QRectF(0, 0, 1440, 900), .available = QRectF(0, 0, 1440, 900)};

/// A housing of 200 by 32 in the middle.
ScreenShape notchedScreen() {
    ScreenShape screen = kScreen;
    screen.safeAreaTop = 32;
    screen.auxiliaryTopLeft = QRectF(0, 0, 620, 32);
    screen.auxiliaryTopRight = QRectF(820, 0, 620, 32);
    return screen;
}

TEST(CapsuleGeometry, WhatLiesBelowTheRowAddsToTheHeight) {
    EXPECT_EQ((capsule::Content{}.extraHeight()), 0);
    EXPECT_EQ((capsule::Content{QSizeF(300, 54), false}.extraHeight()), 68);
    EXPECT_EQ((capsule::Content{QSizeF(300, 54), true}.extraHeight()), 113);
}

TEST(CapsuleGeometry, TheRowViewHoldsRowChipsAndAddRow) {
    EXPECT_EQ((capsule::Content{}.rowViewHeight()), 58);
    EXPECT_EQ((capsule::Content{QSizeF(300, 54), false}.rowViewHeight()), 126);
    EXPECT_EQ((capsule::Content{QSizeF(300, 54), true}.rowViewHeight()), 171);
}

TEST(CapsuleGeometry, ALineTakesItsWidthRoundedUpAndFourMore) {
    EXPECT_EQ(capsule::lineWidth(81.2), 86);
    EXPECT_EQ(capsule::lineWidth(0), 4);
}

TEST(CapsuleGeometry, TheWidthIsThatOfTheWidestPartAndAtLeast340) {
    const auto metrics = NotchMetrics::of(kScreen, 0);
    EXPECT_EQ(capsule::requiredCapsuleWidth(metrics, 40, 120, {}), 340);
    EXPECT_EQ(capsule::requiredCapsuleWidth(metrics, 40, 300, {}), 378);
    EXPECT_EQ(capsule::requiredCapsuleWidth(metrics, 300, 120, {}), 393);
    EXPECT_EQ(capsule::requiredCapsuleWidth(metrics, 40, 120, {QSizeF(342, 54), true}), 378);
}

TEST(CapsuleGeometry, StandsOnWholePixelsWhateverTheScreensWidth) {
    const auto isWhole = [](const QRectF& frame) { return frame.x() == std::floor(frame.x()); };
    ScreenShape odd = kScreen;
    odd.frame.setWidth(1365);
    EXPECT_TRUE(isWhole(capsule::panelFrame(NotchMetrics::of(odd, 68), odd)));
    ScreenShape notched = notchedScreen();
    notched.auxiliaryTopRight->setLeft(notched.auxiliaryTopRight->left() + 1);
    const NotchMetrics metrics = NotchMetrics::of(notched, 68);
    const QRectF panel = capsule::panelFrame(metrics, notched);
    EXPECT_TRUE(isWhole(panel));
    EXPECT_TRUE(isWhole(capsule::openFrame(metrics, 340)));
    EXPECT_EQ(panel.x() + capsule::restingFrame(metrics).x(), notched.auxiliaryTopLeft->right());
}

TEST(CapsuleGeometry, AWideHousingIsCoveredWhole) {
    ScreenShape screen = notchedScreen();
    screen.auxiliaryTopLeft = QRectF(0, 0, 500, 32);
    const auto metrics = NotchMetrics::of(screen, 0);
    EXPECT_EQ(metrics.notchWidth, 320);
    EXPECT_EQ(capsule::requiredCapsuleWidth(metrics, 40, 120, {}), 340);
    screen.auxiliaryTopLeft = QRectF(0, 0, 420, 32);
    EXPECT_EQ(capsule::requiredCapsuleWidth(NotchMetrics::of(screen, 0), 40, 120, {}), 400);
}

TEST(CapsuleGeometry, ThePanelHangsFromTheTopEdgeAroundTheAnchor) {
    const auto metrics = NotchMetrics::of(kScreen, 68);
    EXPECT_EQ(capsule::panelFrame(metrics, kScreen), QRectF(451, 0, 538, 150));
    const ScreenShape second{.frame = QRectF(1440, 100, 800, 600), .available = QRectF()};
    EXPECT_EQ(capsule::panelFrame(NotchMetrics::of(second, 68), second),
              QRectF(1571, 100, 538, 150));
}

TEST(CapsuleGeometry, TheOpenCapsuleIsEvenCentredAndNeverWiderThanTheNotchAnd260) {
    const auto metrics = NotchMetrics::of(kScreen, 68);
    EXPECT_EQ(capsule::openFrame(metrics, 377), QRectF(80, 0, 378, 126));
    EXPECT_EQ(capsule::openFrame(metrics, 378), QRectF(80, 0, 378, 126));
    EXPECT_EQ(capsule::openFrame(metrics, 900), QRectF(24, 0, 490, 126));
    EXPECT_EQ(capsule::openFrame(metrics, 100), QRectF(154, 0, 230, 126));
}

TEST(CapsuleGeometry, AtRestItIsFlushWithTheTop) {
    EXPECT_EQ(capsule::restingFrame(NotchMetrics::of(kScreen, 68)), QRectF(170, 0, 198, 0.5));
    EXPECT_EQ(capsule::restingFrame(NotchMetrics::of(notchedScreen(), 68)),
              QRectF(154, 0, 200, 32));
}

TEST(CapsuleGeometry, ABarAtTheTopStaysFreeAndTheStripLiesOverIt) {
    ScreenShape screen = kScreen;
    screen.available = QRectF(0, 26, 1440, 874);
    const auto metrics = NotchMetrics::of(screen, 68);
    EXPECT_EQ(capsule::panelFrame(metrics, screen), QRectF(451, 0, 538, 176));
    EXPECT_EQ(capsule::openFrame(metrics, 377), QRectF(80, 26, 378, 126));
    EXPECT_EQ(capsule::restingFrame(metrics), QRectF(170, 26, 198, 0.5));
    EXPECT_EQ(capsule::hoverStrip(metrics), QRectF(154, 0, 230, 10));
    EXPECT_EQ(capsule::hoverRect(metrics, capsule::openFrame(metrics, 378)),
              QRectF(80, 0, 378, 152));
}

TEST(CapsuleGeometry, TheStripAtTheEdgeFeelsThePointer) {
    EXPECT_EQ(capsule::hoverStrip(NotchMetrics::of(kScreen, 68)), QRectF(154, 0, 230, 10));
    EXPECT_EQ(capsule::hoverStrip(NotchMetrics::of(notchedScreen(), 68)), QRectF(154, 0, 200, 38));
}

TEST(CapsuleGeometry, AnOpenCapsuleFeelsThePointerAsAWhole) {
    const auto metrics = NotchMetrics::of(kScreen, 68);
    EXPECT_EQ(capsule::hoverRect(metrics, std::nullopt), capsule::hoverStrip(metrics));
    EXPECT_EQ(capsule::hoverRect(metrics, capsule::openFrame(metrics, 378)),
              QRectF(80, 0, 378, 126));
}

} // namespace
} // namespace vantle::tests
