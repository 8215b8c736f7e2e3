#include "surfaces/cards/CardPlacement.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle::cardplacement {
namespace {

const QRect kScreen(0, 28, 1440, 872);
constexpr QSize kCard(380, 263);
constexpr QSize kToast(206, 40);

ScreenShape screen(const QRect& available) { return {.frame = available, .available = available}; }
QPoint cardAt(const QRect& available, const QSize& size) {
    return card(screen(available), size).ground().topLeft();
}
QPoint toastAt(const QRect& available, const QSize& size, const std::vector<QRect>& panels) {
    return toast(screen(available), size, panels).ground().topLeft();
}

TEST(CardPlacement, ACardStandsTwelveFromTheRightAndTenFromTheTop) {
    EXPECT_EQ(cardAt(kScreen, kCard), QPoint(1440 - 12 - 380, 28 + 10));
}

TEST(CardPlacement, AScreenBesideAnotherIsCountedFromItsOwnEdges) {
    EXPECT_EQ(cardAt(QRect(1440, 100, 1024, 668), kCard), QPoint(1440 + 1024 - 392, 110));
}

TEST(CardPlacement, ANarrowScreenKeepsTwelveOnBothSides) {
    EXPECT_EQ(cardWidth(QRect(0, 0, 404, 700)), 380);
    EXPECT_EQ(cardWidth(QRect(0, 0, 403, 700)), 379);
    EXPECT_EQ(cardWidth(QRect(0, 0, 320, 700)), 296);
}

TEST(ToastPlacement, AloneItStandsOnTheLineOfTheCards) {
    EXPECT_EQ(toastAt(kScreen, kToast, {}), QPoint(1440 - 12 - 206, 38));
}

TEST(ToastPlacement, BelowACardItLeavesTwelve) {
    EXPECT_EQ(toastAt(kScreen, kToast, {QRect(1048, 38, 380, 109)}).y(), 38 + 109 + 12);
}

TEST(ToastPlacement, OfSeveralPanelsTheLowestEdgeCounts) {
    const std::vector<QRect> panels = {QRect(1048, 38, 380, 263), QRect(1068, 34, 360, 534),
                                       QRect(1048, 38, 380, 109)};
    EXPECT_EQ(toastAt(kScreen, kToast, panels).y(), 34 + 534 + 12);
}

TEST(ToastPlacement, WhatIsNotInTheCornerDoesNotMatter) {
    const QRect tooFarLeft(1440 - 81 - 380, 38, 380, 109);
    const QRect tooLow(1048, 28 + 81, 380, 109);
    const QRect onAnotherScreen(1448, 38, 72, 109);
    EXPECT_EQ(toastAt(kScreen, kToast, {tooFarLeft, tooLow, onAnotherScreen}).y(), 38);
}

TEST(ToastPlacement, EightyFromBothEdgesIsStillTheCorner) {
    EXPECT_EQ(toastAt(kScreen, kToast, {QRect(1440 - 80 - 380, 108, 380, 100)}).y(), 220);
}

TEST(ToastPlacement, ASliverAtTheVeryTopDoesNotPullItUp) {
    // Its gap would end above the line: 28 - 20 + 3 + 12.
    EXPECT_EQ(toastAt(QRect(0, 28, 1440, 872), kToast, {QRect(1400, 8, 40, 20)}).y(), 38);
}

} // namespace
} // namespace vantle::cardplacement
