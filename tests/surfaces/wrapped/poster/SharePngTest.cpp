#include "surfaces/wrapped/poster/SharePng.h"

#include "surfaces/wrapped/poster/PosterLayout.h"
#include "surfaces/wrapped/poster/PosterPixels.h"
#include "surfaces/wrapped/poster/PosterSamples.h"
#include "surfaces/wrapped/poster/PosterText.h"

#include <QColorSpace>
#include <QImage>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using samples::sharePoster;
using tests::PosterPixels;

// Where things stand, px of the poster.
const QRect kNamePlace(36, 140, 350, 46);
const QRect kHoursPlace(36, 146, 350, 66);

QImage decoded(const SharePoster& poster) {
    return QImage::fromData(renderSharePNG(poster).value_or(QByteArray()), "PNG");
}

TEST(SharePng, IsAPictureInSRgbTwiceAsLargeAsThePoster) {
    const auto poster = sharePoster(WrappedPeriod::Week, QStringLiteral("Night Owl"));
    const QImage image = decoded(poster);
    EXPECT_EQ(image.size(), QSize(844, 1240));
    EXPECT_EQ(image.colorSpace(), QColorSpace(QColorSpace::SRgb));
    EXPECT_FALSE(image.hasAlphaChannel());
    QImage pixels = image.convertToFormat(QImage::Format_RGB32);
    pixels.setColorSpace({});
    EXPECT_TRUE(pixels == PosterPixels(poster).image());
}

TEST(SharePng, IsAsHighAsWhatStandsOnIt) {
    EXPECT_EQ(PosterPixels(sharePoster(WrappedPeriod::Week)).height(), 668);
    EXPECT_EQ(
        PosterPixels(sharePoster(WrappedPeriod::Month, QStringLiteral("Deep Diver"))).height(),
        728);
    EXPECT_EQ(
        PosterPixels(sharePoster(WrappedPeriod::AllTime, QStringLiteral("Early Bird"))).height(),
        755);
}

TEST(SharePng, IsTheSameForTheSamePoster) {
    const auto poster = sharePoster(WrappedPeriod::AllTime, QStringLiteral("All Rounder"));
    const auto png = renderSharePNG(poster);
    ASSERT_TRUE(png);
    EXPECT_EQ(renderSharePNG(poster), png);
}

TEST(SharePng, TheNameGoesFromTheOneColourOfItsTypeToTheOther) {
    SharePoster poster = sharePoster(WrappedPeriod::Week, QStringLiteral("Night Owl"));
    poster.startColor = Qt::red;
    poster.endColor = Qt::blue;
    const PosterPixels pixels(poster);
    const QRect drawn = pixels.drawnIn(kNamePlace);
    ASSERT_FALSE(drawn.isEmpty());
    const int third = drawn.width() / 3;
    const auto first = pixels.meanOfLit(QRect(drawn.topLeft(), QSize(third, drawn.height())));
    const auto last = pixels.meanOfLit(drawn.adjusted(2 * third, 0, 0, 0));
    EXPECT_GT(first.red(), 2 * first.blue());
    EXPECT_GT(last.blue(), 2 * last.red());
}

TEST(SharePng, TheHoursStandInTheirPlaceWithoutAType) {
    const PosterPixels pixels(sharePoster(WrappedPeriod::Week));
    const QColor mean = pixels.meanOfLit(pixels.drawnIn(kHoursPlace));
    EXPECT_NEAR(mean.red(), mean.blue(), 8) << "no colour but white";
    EXPECT_GT(mean.red(), 150);
}

TEST(SharePng, ATypeOfALongNameStaysInTheColumn) {
    SharePoster poster = sharePoster(WrappedPeriod::Week, QStringLiteral("Night Owl"));
    poster.personaName = QStringLiteral("Extraordinarily Persevering Nightwatchman");
    const PosterPixels pixels(poster);
    EXPECT_LE(pixels.drawnIn(QRect(0, 140, 422, 46)).right(), 386);
    EXPECT_EQ(pixels.height(), 620);
}

TEST(SharePng, LongHoursStayInTheColumn) {
    WrappedSettings settings = samples::posterSettings();
    const WrappedStats stats = samples::posterStats(WrappedPeriod::AllTime, {});
    for (const DurationStyle style : durationstyle::all) {
        settings.durationStyle = style;
        const PosterPixels pixels(reviewcards::poster(stats, settings));
        EXPECT_LE(pixels.drawnIn(QRect(0, 146, 422, 66)).right(), 386)
            << durationstyle::sample(style).toStdString();
    }
}

TEST(SharePng, ALongClosingLineTakesTwoLinesAndNoMore) {
    SharePoster poster = sharePoster(WrappedPeriod::Week, QStringLiteral("Night Owl"));
    poster.closing = QStringLiteral("18.4 h across 12 sessions, led by Rewriting the importer.");
    EXPECT_EQ(PosterPixels(poster).height(), 620 + 23);
    poster.closing = QStringLiteral("word ").repeated(200);
    EXPECT_EQ(PosterPixels(poster).height(), 620 + 23);
    poster.closing = QString(400, QLatin1Char('m'));
    const PosterPixels oneWord(poster);
    EXPECT_EQ(oneWord.height(), 620 + 23);
    EXPECT_LE(oneWord.drawnIn(QRect(0, 190, 422, 50)).right(), 386);
}

TEST(SharePng, NamesOfSkillsGetTheRoomThatTheyNeed) {
    SharePoster poster = samples::sharePoster(WrappedPeriod::Week, QStringLiteral("Night Owl"));
    poster.breakdown[0].name = QStringLiteral("Qualitätsmanagement A");
    const QFont font = postertext::font(look::kType.bodyMedium);
    const double wide = postertext::width(poster.breakdown[0].name, font);
    ASSERT_GT(wide, 132);
    const PosterPixels pixels(poster);
    const PosterLayout at = PosterLayout::of(poster);
    const auto line = static_cast<int>(at.row(0));
    // The colour of the bar begins after the whole name.
    int bar = 0;
    for (int x = 36; x < 386 && bar == 0; ++x)
        if (pixels.at(x, line) == poster.breakdown[0].color) bar = x;
    EXPECT_GE(bar, 36 + wide + 8);
    EXPECT_LE(bar, 36 + wide + 20);
}

TEST(SharePng, WithoutHoursThereIsNoBreakdown) {
    SharePoster poster = sharePoster(WrappedPeriod::Week, QStringLiteral("Night Owl"));
    poster.breakdown.clear();
    poster.breakdownKicker.clear();
    const int without = PosterPixels(poster).height();
    EXPECT_LT(without, 620 - 3 * 28);
}

TEST(SharePng, AnEmptyPosterIsDrawnAllTheSame) {
    const PosterPixels pixels{SharePoster()};
    EXPECT_GT(pixels.height(), 0);
    EXPECT_EQ(pixels.image().pixelColor(0, pixels.image().height() - 1), QColor(0x0A, 0x0A, 0x0F));
}

TEST(SharePng, TheDotsTakeTheColoursInTurnFromTheCorner) {
    SharePoster poster = sharePoster(WrappedPeriod::Week);
    poster.dotColors = {Qt::red, Qt::green};
    const PosterPixels pixels(poster);
    const QColor first = pixels.meanOfLit(QRect(416, 8, 6, 8));
    const QColor second = pixels.meanOfLit(QRect(397, 8, 8, 8));
    const QColor third = pixels.meanOfLit(QRect(378, 8, 8, 8));
    EXPECT_GT(first.red(), first.green());
    EXPECT_GT(second.green(), second.red());
    EXPECT_GT(third.red(), third.green());
}

} // namespace
} // namespace vantle
