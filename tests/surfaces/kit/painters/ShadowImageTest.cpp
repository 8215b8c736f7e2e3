#include "surfaces/kit/painters/ShadowImage.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

const ShadowShape kCard{{380.0, 263.0}, 18.0, 18.0, 48.0, 0.45};

TEST(ShadowImage, TheSmallestFormIsMuchSmallerAndHasTheSamePatches) {
    const ShadowShape smallest = kCard.smallest();
    EXPECT_LT(smallest.size.width(), 200.0);
    EXPECT_LT(smallest.size.height(), 230.0);
    EXPECT_EQ(smallest.patches(), kCard.patches());
    EXPECT_EQ(smallest.reach(), kCard.reach());
}

TEST(ShadowImage, SurfacesOfAllSizesShareIt) {
    ShadowShape larger = kCard;
    larger.size = {900.0, 700.0};
    EXPECT_EQ(larger.smallest(), kCard.smallest());
}

TEST(ShadowImage, ASurfaceSmallerThanItsShadowIsItsOwnForm) {
    const ShadowShape toast{{200.0, 40.0}, 20.0, 10.0, 28.0, 0.40};
    EXPECT_EQ(toast.smallest().size.height(), 40.0);
}

TEST(ShadowImage, IsClearBelowTheSurfaceAndDarkestJustBelowIt) {
    const QImage image = shadowImage(kCard);
    const QMargins reach = kCard.reach();
    const int middle = image.width() / 2;
    const int bottom = static_cast<int>(reach.top() + kCard.size.height());
    EXPECT_EQ(image.pixelColor(middle, bottom - 20).alpha(), 0);
    EXPECT_GT(image.pixelColor(middle, bottom + 1).alpha(), 60);
    EXPECT_GT(image.pixelColor(middle, bottom + 1).alpha(),
              image.pixelColor(middle, bottom + 30).alpha());
    EXPECT_LE(image.pixelColor(middle, image.height() - 1).alpha(), 2);
    EXPECT_LE(image.pixelColor(0, bottom).alpha(), 2);
}

TEST(ShadowImage, FallsDownwards) {
    const QImage image = shadowImage(kCard);
    const QMargins reach = kCard.reach();
    const int middle = image.width() / 2;
    const int top = static_cast<int>(reach.top());
    const int bottom = static_cast<int>(reach.top() + kCard.size.height());
    EXPECT_GT(image.pixelColor(middle, bottom + 2).alpha(),
              2 * image.pixelColor(middle, top - 3).alpha());
}

TEST(ShadowImage, AtEveryScaleTheSurfaceBeginsAndEndsOnWholePixels) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        const ShadowShape shape = kCard.atScale(scale);
        const QImage image = shadowImage(shape);
        const QMargins reach = shape.reach();
        const QSize surface(qRound(kCard.size.width() * scale),
                            qRound(kCard.size.height() * scale));
        EXPECT_EQ(image.size(), surface.grownBy(reach)) << scale;
        const int middle = image.width() / 2;
        const int bottom = reach.top() + surface.height();
        EXPECT_EQ(image.pixelColor(middle, bottom - 1).alpha(), 0) << scale;
        EXPECT_GT(image.pixelColor(middle, bottom).alpha(), 60) << scale;
        const int left = reach.left();
        const int half = reach.top() + surface.height() / 2;
        EXPECT_EQ(image.pixelColor(left, half).alpha(), 0) << scale;
        EXPECT_GT(image.pixelColor(left - 1, half).alpha(), 10) << scale;
    }
}

} // namespace
} // namespace vantle
