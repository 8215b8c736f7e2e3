#include "surfaces/wrapped/poster/PosterRhythm.h"

#include "surfaces/wrapped/poster/PosterPixels.h"
#include "surfaces/wrapped/poster/PosterSamples.h"
#include "surfaces/wrapped/poster/PosterText.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::PosterPixels;

const QColor kGround(0x0A, 0x0A, 0x0F);
const QColor kEmpty(22, 22, 27); // white at 5 % over it

SharePoster posterOf(rhythmmap::Picture kind, std::size_t weeks) {
    SharePoster poster = samples::sharePoster(WrappedPeriod::Week, QStringLiteral("Night Owl"));
    poster.rhythm = {};
    poster.rhythm.kind = kind;
    poster.rhythm.letters = QStringList(7, QStringLiteral("M"));
    poster.rhythm.weeks.resize(weeks);
    for (auto& week : poster.rhythm.weeks)
        for (DayTile& day : week)
            day.isDay = true;
    return poster;
}

DayTile lit(const QColor& color) {
    DayTile tile;
    tile.isDay = true;
    tile.hasFill = true;
    tile.fill = color;
    return tile;
}

/// Whether colours are the same but for rounding.
testing::AssertionResult alike(const QColor& one, const QColor& other) {
    const int apart =
        std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                  std::abs(one.blue() - other.blue())});
    if (apart <= 1) return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << one.name().toStdString() << " is not " << other.name().toStdString();
}

TEST(PosterRhythm, AWeekStandsInALineFromEdgeToEdge) {
    SharePoster poster = posterOf(rhythmmap::Picture::Week, 1);
    poster.rhythm.weeks[0][0] = lit(Qt::red);
    poster.rhythm.weeks[0][6] = lit(Qt::green);
    const PosterPixels pixels(poster);
    EXPECT_TRUE(alike(pixels.at(56, 314), Qt::red));
    EXPECT_TRUE(alike(pixels.at(366, 314), QColor(Qt::green)));
    EXPECT_TRUE(alike(pixels.at(108, 314), kEmpty)) << "a day of rest is an empty tile";
    EXPECT_TRUE(alike(pixels.at(82, 314), kGround)) << "between two tiles";
    EXPECT_FALSE(pixels.drawnIn(QRect(50, 272, 12, 10)).isEmpty()) << "its letter";
}

TEST(PosterRhythm, AMonthGrowsWithItsWeeks) {
    for (const std::size_t weeks : {4U, 5U, 6U}) {
        SharePoster poster = posterOf(rhythmmap::Picture::Month, weeks);
        poster.rhythm.weeks.back()[6] = lit(Qt::red);
        const PosterPixels pixels(poster);
        const int rows = static_cast<int>(weeks);
        EXPECT_EQ(pixels.height(), 728 + 34 * (rows - 5));
        EXPECT_TRUE(alike(pixels.at(364, 273 + 34 * (rows - 1) + 13), Qt::red));
    }
}

TEST(PosterRhythm, DaysOfOtherMonthsAreLeftOut) {
    SharePoster poster = posterOf(rhythmmap::Picture::Month, 5);
    poster.rhythm.weeks[0][0] = DayTile();
    const PosterPixels pixels(poster);
    EXPECT_TRUE(alike(pixels.at(58, 286), kGround));
    EXPECT_TRUE(alike(pixels.at(109, 286), kEmpty));
}

TEST(PosterRhythm, AYearStandsInTwoHalvesAndHasRoomForItsLongest) {
    SharePoster poster = posterOf(rhythmmap::Picture::Year, 54);
    poster.rhythm.weeks[26][0] = lit(Qt::red);
    poster.rhythm.weeks[27][0] = lit(Qt::green);
    poster.rhythm.weeks[53][6] = lit(Qt::blue);
    const PosterPixels pixels(poster);
    EXPECT_TRUE(alike(pixels.at(36 + 26 * 13 + 5, 278), Qt::red));
    EXPECT_TRUE(alike(pixels.at(41, 273 + 105 + 5), QColor(Qt::green)));
    EXPECT_TRUE(alike(pixels.at(36 + 26 * 13 + 5, 273 + 105 + 6 * 13 + 5), Qt::blue));
    EXPECT_EQ(pixels.height(), 755);
}

TEST(PosterRhythm, TodayHasARingAndTomorrowAFaintEdge) {
    SharePoster poster = posterOf(rhythmmap::Picture::Week, 1);
    DayTile& today = poster.rhythm.weeks[0][0];
    today.isToday = true;
    today.outline = QColor(255, 255, 255, 97);
    today.outlineWidth = 1.5;
    DayTile& tomorrow = poster.rhythm.weeks[0][6];
    tomorrow.isFuture = true;
    tomorrow.hasFill = true;
    tomorrow.fill = QColor(255, 255, 255, 5);
    tomorrow.outline = QColor(255, 255, 255, 13);
    tomorrow.outlineWidth = 1;
    const PosterPixels pixels(poster);
    const int middle = 314;
    EXPECT_GT(pixels.image().pixelColor(2 * 33 + 1, 2 * middle).red(), 90) << "left of the tile";
    EXPECT_TRUE(alike(pixels.image().pixelColor(2 * 35, 2 * middle), kGround)) << "clear of it";
    EXPECT_GT(pixels.at(346, middle).red(), pixels.at(366, middle).red());
    EXPECT_GT(pixels.at(366, middle).red(), kGround.red());
}

TEST(PosterRhythm, TodaysRingInAYearLiesOverTheDaysBesideIt) {
    SharePoster poster = posterOf(rhythmmap::Picture::Year, 54);
    for (auto& week : poster.rhythm.weeks)
        for (DayTile& day : week)
            day = lit(Qt::red);
    DayTile& today = poster.rhythm.weeks[10][3];
    today.isToday = true;
    today.outline = QColor(255, 255, 255, 97);
    today.outlineWidth = 1.5;
    const PosterPixels pixels(poster);
    constexpr double kTile = 10.5;
    const QPointF corner(36 + 10 * 13, 273 + 3 * 13);
    const auto green = [&](double x, double y) {
        return pixels.image().pixelColor(static_cast<int>(2 * x), static_cast<int>(2 * y)).green();
    };
    const double middle = kTile / 2;
    for (const double away : {1.2, 1.7, 2.2, 2.7}) {
        EXPECT_GT(green(corner.x() - away, corner.y() + middle), 150) << "left " << away;
        EXPECT_GT(green(corner.x() + kTile + away - 0.1, corner.y() + middle), 150)
            << "right " << away;
        EXPECT_GT(green(corner.x() + middle, corner.y() - away), 150) << "above " << away;
        EXPECT_GT(green(corner.x() + middle, corner.y() + kTile + away - 0.1), 150)
            << "below " << away;
    }
    EXPECT_LT(green(corner.x() - 0.7, corner.y() + middle), 40) << "clear of it";
}

TEST(PosterRhythm, LettersOfTheWeekdaysAreMedium) {
    SharePoster poster = posterOf(rhythmmap::Picture::Week, 1);
    const PosterPixels pixels(poster);
    QImage expected(pixels.image().size(), QImage::Format_RGB32);
    expected.fill(kGround);
    {
        QPainter painter(&expected);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.scale(2, 2);
        postertext::drawAround(painter, {56, 281}, QStringLiteral("M"),
                               postertext::font(look::kType.smallMedium),
                               look::kDark.textWeekday.color());
    }
    const QRect letter(2 * 48, 2 * 270, 2 * 16, 2 * 14);
    EXPECT_EQ(pixels.image().copy(letter), expected.copy(letter));
}

TEST(PosterRhythm, WithoutWeeksThereIsNothing) {
    const PosterPixels pixels(posterOf(rhythmmap::Picture::Month, 0));
    EXPECT_TRUE(pixels.drawnIn(QRect(0, 260, 422, 20)).isEmpty());
    EXPECT_LT(pixels.height(), 620);
}

} // namespace
} // namespace vantle
