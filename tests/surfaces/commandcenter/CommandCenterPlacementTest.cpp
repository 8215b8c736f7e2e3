#include "surfaces/commandcenter/CommandCenterPlacement.h"

#include <gtest/gtest.h>

namespace vantle::commandcenterplacement {
namespace {

constexpr QSize kPanel(360, 534);
constexpr int kBar = 28;

std::vector<ScreenShape> topBar() {
    return {{.frame = QRectF(0, 0, 1440, 900), .available = QRectF(0, kBar, 1440, 900 - kBar)}};
}
std::vector<ScreenShape> bottomBar() {
    return {{.frame = QRectF(0, 0, 1440, 900), .available = QRectF(0, 0, 1440, 900 - kBar)}};
}

QRect frameOf(const QSize& size, const Anchor& anchor, const std::vector<ScreenShape>& screens) {
    return place(size, anchor, screens).ground();
}

TEST(CommandCenterPlacement, ThePanelHangsCentredUnderTheTrayItem) {
    EXPECT_EQ(frameOf(kPanel, {QRect(1000, 2, 24, 24), {}}, topBar()), QRect(832, 36, 360, 534));
}

TEST(CommandCenterPlacement, ItKeepsFourFromAnItemThatHangsLower) {
    EXPECT_EQ(frameOf(kPanel, {QRect(1000, 20, 24, 24), {}}, topBar()).y(), 48);
}

TEST(CommandCenterPlacement, ItStaysEightFromTheEdges) {
    EXPECT_EQ(frameOf(kPanel, {QRect(1410, 2, 24, 24), {}}, topBar()).x(), 1440 - 360 - 8);
    EXPECT_EQ(frameOf(kPanel, {QRect(10, 2, 24, 24), {}}, topBar()).x(), 8);
}

TEST(CommandCenterPlacement, ItStandsOverAnItemInABarAtTheBottom) {
    EXPECT_EQ(frameOf(kPanel, {QRect(1000, 874, 24, 24), {}}, bottomBar()),
              QRect(832, 872 - 8 - 534, 360, 534));
}

TEST(CommandCenterPlacement, WhereOnlyTheClickIsKnownItStandsThere) {
    const QRect frame = frameOf(kPanel, {{}, QPoint(1000, 14)}, topBar());
    EXPECT_EQ(frame.topLeft(), QPoint(820, 36));
}

TEST(CommandCenterPlacement, WhereNothingIsKnownItStandsAtTheTopRight) {
    EXPECT_EQ(frameOf(kPanel, {}, topBar()), QRect(1440 - 360 - 12, 36, 360, 534));
}

TEST(CommandCenterPlacement, AnItemThatNoScreenShowsCountsAsUnknown) {
    EXPECT_EQ(frameOf(kPanel, {QRect(-200, -200, 24, 24), {}}, topBar()),
              frameOf(kPanel, {}, topBar()));
    EXPECT_EQ(frameOf(kPanel, {{}, QPoint(5000, 14)}, topBar()), frameOf(kPanel, {}, topBar()));
}

TEST(CommandCenterPlacement, TheItemsOwnScreenCounts) {
    auto screens = topBar();
    screens.push_back(
        {.frame = QRectF(1440, 0, 1024, 768), .available = QRectF(1440, 30, 1024, 738)});
    EXPECT_EQ(frameOf(kPanel, {QRect(2400, 2, 24, 24), {}}, screens), QRect(2096, 38, 360, 534));
}

TEST(CommandCenterPlacement, OnALowScreenItIsNoHigherThanTheFreeArea) {
    const std::vector<ScreenShape> low = {
        {.frame = QRectF(0, 0, 512, 384), .available = QRectF(0, 14, 512, 370)}};
    EXPECT_EQ(frameOf(kPanel, {}, low), QRect(140, 22, 360, 354));
    EXPECT_EQ(maximumHeight({}, low), 354);
}

} // namespace
} // namespace vantle::commandcenterplacement
