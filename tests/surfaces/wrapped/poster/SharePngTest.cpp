#include "surfaces/wrapped/poster/SharePng.h"

#include "surfaces/wrapped/poster/PosterSamples.h"

#include <QColorSpace>
#include <QImage>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using samples::sharePoster;

QImage picture(const SharePoster& poster) {
    return QImage::fromData(renderSharePNG(poster).value_or(QByteArray()), "PNG");
}

TEST(SharePng, IsAPictureInSRgbTwiceAsLargeAsThePoster) {
    const QImage image = picture(sharePoster(WrappedPeriod::Week, QStringLiteral("Night Owl")));
    EXPECT_EQ(image.size(), QSize(844, 1240));
    EXPECT_EQ(image.colorSpace(), QColorSpace(QColorSpace::SRgb));
    EXPECT_FALSE(image.hasAlphaChannel());
}

TEST(SharePng, IsAsHighAsWhatStandsOnIt) {
    EXPECT_EQ(picture(sharePoster(WrappedPeriod::Week)).height(), 2 * 668);
    EXPECT_EQ(picture(sharePoster(WrappedPeriod::Month, QStringLiteral("Deep Diver"))).height(),
              2 * 728);
    EXPECT_EQ(picture(sharePoster(WrappedPeriod::AllTime, QStringLiteral("Early Bird"))).height(),
              2 * 755);
}

TEST(SharePng, IsTheSameForTheSamePoster) {
    const auto poster = sharePoster(WrappedPeriod::AllTime, QStringLiteral("All Rounder"));
    EXPECT_EQ(renderSharePNG(poster), renderSharePNG(poster));
}

} // namespace
} // namespace vantle
