#include "review/drawing/RhythmLayout.h"

#include "review/stats/ReviewSamples.h"

#include <gtest/gtest.h>

#include <set>

namespace vantle {
namespace {

using samples::worked;

constexpr double kColumn = 368;

/// A Wednesday.
const WrappedSettings& settings() {
    static const WrappedSettings settings = samples::settingsAt("2026-03-11T14:00:00Z");
    return settings;
}

RhythmPicture pictureOf(WrappedPeriod period, int year = 2026,
                        const WrappedSettings& now = settings()) {
    const std::vector<Session> log = {worked("2026-03-10T09:00:00Z", 90)};
    return reviewcards::rhythmPicture(WrappedStats::compute(log, period, now), now, year);
}

RhythmLayout layoutOf(WrappedPeriod period, int year = 2026) {
    return RhythmLayout::of(pictureOf(period, year), kColumn);
}

TEST(RhythmLayout, AWeekIsSevenTilesFromEdgeToEdgeUnderTheirLetters) {
    const RhythmLayout week = layoutOf(WrappedPeriod::Week);
    ASSERT_EQ(week.spots.size(), 7U);
    EXPECT_EQ(week.area(0), QRectF(0, 25, 44, 44));
    EXPECT_EQ(week.area(6).right(), kColumn);
    EXPECT_EQ(week.area(1).left() - week.area(0).right(), 10);
    EXPECT_EQ(week.size, QSizeF(kColumn, 69));
    ASSERT_EQ(week.labels.size(), 7U);
    EXPECT_EQ(week.labels[0].text, QStringLiteral("M"));
    for (int i = 0; i < 7; ++i) {
        const auto& label = week.labels[static_cast<std::size_t>(i)];
        EXPECT_EQ(label.top.x(), week.area(i).center().x());
        EXPECT_TRUE(label.isCentered);
        EXPECT_EQ(label.isFuture, i > 2) << "after Wednesday";
    }
}

TEST(RhythmLayout, AMonthHasItsDaysUnderTheLettersOfTheirWeekdays) {
    const RhythmLayout month = layoutOf(WrappedPeriod::Month);
    ASSERT_EQ(month.spots.size(), 31U);
    EXPECT_EQ(month.area(0).topLeft(), QPointF(324, 25)) << "a Sunday";
    EXPECT_EQ(month.area(1).topLeft(), QPointF(0, 79)) << "the Monday below";
    EXPECT_EQ(month.area(30).topLeft(), QPointF(54, 25 + 5 * 54)) << "a Tuesday";
    EXPECT_EQ(month.size.height(), 25 + 6 * 54 - 10);
    EXPECT_EQ(month.labels.size(), 7U);
    EXPECT_FALSE(month.labels[6].isFuture) << "a column has days that were";
}

TEST(RhythmLayout, AYearIsTwelveMonthsInThreeColumnsWithAllOfItsDays) {
    const RhythmLayout year = layoutOf(WrappedPeriod::AllTime);
    EXPECT_EQ(year.spots.size(), 365U);
    EXPECT_EQ(layoutOf(WrappedPeriod::AllTime, 2024).spots.size(), 366U);
    ASSERT_EQ(year.labels.size(), 12U);
    std::set<double> columns;
    for (const auto& label : year.labels)
        columns.insert(label.top.x());
    EXPECT_EQ(columns.size(), 3U);
    EXPECT_EQ(year.labels[0].text, QStringLiteral("Jan"));
    EXPECT_EQ(year.labels[11].text, QStringLiteral("Dec"));
    EXPECT_FALSE(year.labels[2].isFuture) << "it is March";
    EXPECT_TRUE(year.labels[3].isFuture);
    double right = 0;
    double bottom = 0;
    for (int i = 0; i < 365; ++i) {
        right = std::max(right, year.area(i).right());
        bottom = std::max(bottom, year.area(i).bottom());
    }
    EXPECT_DOUBLE_EQ(right, kColumn);
    EXPECT_LE(bottom, year.size.height());
    EXPECT_EQ(year.area(0).topLeft(), QPointF(45, 23)) << "a Thursday";
}

TEST(RhythmLayout, NoTwoTilesTouch) {
    for (const auto period : {WrappedPeriod::Week, WrappedPeriod::Month, WrappedPeriod::AllTime}) {
        const RhythmLayout layout = layoutOf(period);
        const int days = static_cast<int>(layout.spots.size());
        for (int i = 0; i < days; ++i)
            for (int j = 0; j < i; ++j)
                EXPECT_FALSE(layout.area(i).adjusted(-1, -1, 1, 1).intersects(layout.area(j)))
                    << i << " and " << j;
    }
}

TEST(RhythmLayout, TheDayUnderThePointerIsFoundByItsTile) {
    const RhythmLayout month = layoutOf(WrappedPeriod::Month);
    for (int i = 0; i < 31; ++i)
        EXPECT_EQ(month.spotAt(month.area(i).center()), i);
    EXPECT_EQ(month.spotAt(month.area(3).topLeft() - QPointF(0.5, 0.5)), 3) << "nearly";
    EXPECT_EQ(month.spotAt({49, 100}), -1) << "between two";
    EXPECT_EQ(month.spotAt({10, 40}), -1) << "a blank";
    EXPECT_EQ(month.spots[9].tile.help(), QStringLiteral("Tue, Mar 10 · 1.5 h"));
}

TEST(RhythmLayout, WeeksBeginWhereTheLocaleBeginsThemAndRunFromLeftToRightEverywhere) {
    WrappedSettings there = settings();
    there.calendar = Calendar{QStringLiteral("UTC"), 1, 1, QStringLiteral("he_IL")};
    const auto week = RhythmLayout::of(pictureOf(WrappedPeriod::Week, 2026, there), kColumn);
    ASSERT_EQ(week.spots.size(), 7U);
    EXPECT_EQ(week.area(0).left(), 0);
    EXPECT_FALSE(week.spots[3].tile.isFuture) << "Wednesday";
    EXPECT_TRUE(week.spots[3].tile.isToday);
    EXPECT_TRUE(week.spots[4].tile.isFuture);
    EXPECT_EQ(week.labels[0].text, pictureOf(WrappedPeriod::Week, 2026, there).letters.front());
}

TEST(RhythmLayout, NothingIsShownOfACalendarThatCantTell) {
    const RhythmLayout layout = RhythmLayout::of(RhythmPicture(), kColumn);
    EXPECT_TRUE(layout.spots.empty());
    EXPECT_TRUE(layout.labels.empty());
    EXPECT_EQ(layout.size.height(), 0);
    EXPECT_EQ(layout.spotAt({0, 0}), -1);
}

} // namespace
} // namespace vantle
