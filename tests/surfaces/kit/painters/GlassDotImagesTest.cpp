#include "surfaces/kit/painters/GlassDotImages.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace vantle {
namespace {

TEST(GlassDotImages, BakesAColourAndRadiusOncePerScale) {
    GlassDotImages images;
    const QImage first = images.image(Qt::red, 6.0, 1.0);
    EXPECT_EQ(images.image(Qt::red, 6.0, 1.0).cacheKey(), first.cacheKey());
    EXPECT_EQ(images.size(), 1);
    EXPECT_NE(images.image(Qt::red, 6.0, 2.0).cacheKey(), first.cacheKey());
    EXPECT_NE(images.image(Qt::red, 7.0, 1.0).cacheKey(), first.cacheKey());
    EXPECT_NE(images.image(Qt::green, 6.0, 1.0).cacheKey(), first.cacheKey());
    EXPECT_NE(images.image({}, 6.0, 1.0).cacheKey(), first.cacheKey());
    EXPECT_EQ(images.size(), 5);
}

TEST(GlassDotImages, ASocketIsNotTakenForABlackDot) {
    GlassDotImages images;
    EXPECT_NE(images.image(Qt::black, 6.0, 1.0), images.image({}, 6.0, 1.0));
}

TEST(GlassDotImages, AnImageHasTheScaleItWasBakedAt) {
    GlassDotImages images;
    const QImage twice = images.image(Qt::red, 6.0, 2.0);
    EXPECT_EQ(twice.devicePixelRatio(), 2.0);
    EXPECT_GT(twice.width(), 2 * 12);
    EXPECT_EQ(twice.width() % 2, 1) << "the centre is the middle of a pixel";
    EXPECT_EQ(twice.pixelColor(0, 0).alpha(), 0) << "the glow ends inside";
}

TEST(GlassDotImages, DraggingAWindowWiderDoesNotGatherImagesForEver) {
    GlassDotImages images;
    for (int i = 0; i < 2000; ++i)
        (void)images.image(Qt::red, 5.0 + i * 0.01, 1.0);
    EXPECT_LE(images.size(), 256);
}

TEST(GlassDotImages, DotsAreDrawnSharpWhereverTheyStand) {
    // At any place within a pixel the same image lands, unblurred.
    GlassDotImages images;
    const auto drawnAt = [&images](double x) {
        QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        images.draw(painter, {x, 20.5}, Qt::red, 6.0, 1.0);
        return image;
    };
    EXPECT_EQ(drawnAt(20.3), drawnAt(20.5));
    EXPECT_EQ(drawnAt(20.7), drawnAt(20.5));
    EXPECT_NE(drawnAt(21.5), drawnAt(20.5));
}

} // namespace
} // namespace vantle
