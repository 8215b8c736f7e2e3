// The ring and the fade: their figures are recorded cases, their pictures are looked at here.
#include "ceremony/CollapseRippleView.h"
#include "ceremony/ReducedMotionFadeView.h"

#include <QImage>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

constexpr QSize kSmallScreen(400, 300);
constexpr std::uint32_t kAccent = 0x30D158;

QImage painted(OverlayView& view, double t) {
    QImage image(kSmallScreen, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::darkCyan); // what stood there before
    view.paint(image, Seconds(t));
    return image;
}

bool isClear(const QImage& image) {
    QImage clear(image.size(), image.format());
    clear.fill(Qt::transparent);
    return image == clear;
}

TEST(CollapseRippleView, TheRingIsDrawnInTheSkillsColourAroundTheCentre) {
    CollapseRippleView view({}, kAccent);
    const QImage image = painted(view, 0.5);
    const double radius = CollapseRippleView::ringAt(kSmallScreen, Seconds(0.5))->radius;
    const QColor onRing = image.pixelColor(200 + qRound(radius), 150);
    EXPECT_NEAR(onRing.alphaF(), 0.44, 0.1);
    EXPECT_GT(onRing.green(), onRing.red());
    EXPECT_EQ(image.pixelColor(200, 150).alpha(), 0);
    EXPECT_EQ(image.pixelColor(5, 5).alpha(), 0);
}

TEST(CollapseRippleView, NothingIsDrawnOutsideOfItsTime) {
    CollapseRippleView view({}, kAccent);
    EXPECT_TRUE(isClear(painted(view, -0.1)));
    EXPECT_TRUE(isClear(painted(view, 0.6)));
    EXPECT_TRUE(view.solidPart(kSmallScreen, Seconds(0.6)).isEmpty());
}

TEST(CollapseRippleView, WithoutTransparencyTheWindowIsTheRingAlone) {
    CollapseRippleView view({}, kAccent);
    const QRegion ring = view.solidPart(kSmallScreen, Seconds(0.4));
    const int radius = qRound(CollapseRippleView::ringAt(kSmallScreen, Seconds(0.4))->radius);
    EXPECT_TRUE(ring.contains(QPoint(200 + radius, 150)));
    EXPECT_FALSE(ring.contains(QPoint(200, 150)));
    EXPECT_FALSE(ring.contains(QPoint(200 + radius + 5, 150)));
    EXPECT_TRUE(QRegion(QRect(QPoint(), kSmallScreen)).contains(ring.boundingRect()));
}

TEST(ReducedMotionFadeView, TheScreenDimsWithAGlowInTheCentre) {
    ReducedMotionFadeView view({}, kAccent);
    const QImage image = painted(view, 0.3);
    EXPECT_EQ(image.pixelColor(1, 1).rgba(), qRgba(0, 0, 0, 56)) << "22 % of black";
    EXPECT_GT(image.pixelColor(200, 150).alphaF(), 0.35);
    EXPECT_GT(image.pixelColor(200, 150).green(), 60);
    EXPECT_LT(image.pixelColor(200, 20).green(), image.pixelColor(200, 150).green());
}

TEST(ReducedMotionFadeView, NothingIsDrawnOutsideOfItsTime) {
    ReducedMotionFadeView view({}, kAccent);
    EXPECT_TRUE(isClear(painted(view, -0.1)));
    EXPECT_TRUE(isClear(painted(view, 0)));
    EXPECT_TRUE(isClear(painted(view, 0.9)));
    EXPECT_TRUE(view.solidPart(kSmallScreen, Seconds(0.3)).isEmpty());
}

} // namespace
} // namespace vantle::tests
