// What the page of the rhythm shows where the recorded cases don't reach.
#include "review/RhythmCard.h"

#include "review/CardSamples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using samples::settings;
using samples::week;
using samples::worked;

TEST(RhythmCard, WallShowsTheNewestDotsThatFit) {
    const auto stats = week({worked("2026-03-09T09:00:00Z", 120),
                             worked("2026-03-10T09:00:00Z", 60, QStringLiteral("marketing"))});
    const auto card = reviewcards::rhythm(stats, settings(), std::nullopt, 2);
    EXPECT_EQ(card.wallCaption,
              QStringLiteral("One dot per finished hour. 1 earlier hour off the top."));
    EXPECT_EQ(card.wallColors,
              (QList<QColor>{QColor::fromRgb(0x7A78FF), QColor::fromRgb(0xFF375F)}));
    EXPECT_EQ(reviewcards::rhythm(stats, settings(), std::nullopt, 3).wallCaption,
              QStringLiteral("One dot per finished hour, in the skill that earned it."));
}

TEST(RhythmCard, WallCountsTheHoursThatDoNotFit) {
    const auto stats = week({worked("2026-03-09T09:00:00Z", 300)});
    EXPECT_EQ(reviewcards::rhythm(stats, settings(), std::nullopt, 2).wallCaption,
              QStringLiteral("One dot per finished hour. 3 earlier hours off the top."));
}

TEST(RhythmCard, WeekWithoutAFinishedHourHasNoWall) {
    const auto card = reviewcards::rhythm(week({worked("2026-03-09T09:00:00Z", 59)}), settings(),
                                          std::nullopt, 9);
    EXPECT_TRUE(card.picture.isWeek());
    EXPECT_TRUE(card.wallKicker.isEmpty());
    EXPECT_TRUE(card.wallCaption.isEmpty());
}

TEST(RhythmCard, CalendarWithoutWeeksHasNoTilesAndNoNamesForThem) {
    WrappedSettings nowhere = settings();
    nowhere.calendar.timeZone = QStringLiteral("No/Where");
    WrappedStats stats;
    for (const auto period : {WrappedPeriod::Week, WrappedPeriod::Month, WrappedPeriod::AllTime}) {
        stats.period = period;
        const auto picture = reviewcards::rhythmPicture(stats, nowhere, 2026);
        EXPECT_TRUE(picture.tileList().isEmpty());
        EXPECT_TRUE(picture.monthNames.join(QString()).isEmpty());
    }
}

TEST(RhythmCard, MonthAndAllTimeHaveNoWall) {
    const std::vector<Session> log = {worked("2026-03-09T09:00:00Z", 120)};
    for (const auto period : {WrappedPeriod::Month, WrappedPeriod::AllTime}) {
        const auto stats = WrappedStats::compute(log, period, settings());
        const auto card = reviewcards::rhythm(stats, settings(), std::nullopt, 9);
        EXPECT_TRUE(card.wallKicker.isEmpty());
        EXPECT_TRUE(card.wallColors.isEmpty());
    }
}

TEST(RhythmCard, TilesCarryTheirColourTheirOutlineAndTheirWords) {
    const auto stats = week({worked("2026-03-09T09:00:00Z", 90)});
    const auto picture = reviewcards::rhythm(stats, settings(), std::nullopt, 9).picture;
    EXPECT_TRUE(picture.isWeek());
    EXPECT_EQ(picture.letters.join(u' '), QStringLiteral("M T W T F S S"));
    ASSERT_EQ(picture.weeks.size(), 1U);
    const auto& tiles = picture.weeks.front();
    EXPECT_EQ(tiles[0].help(), QStringLiteral("Mon, Mar 9 · 1.5 h"));
    EXPECT_EQ(tiles[0].fill.rgb(), QColor::fromRgb(0x7A78FF).rgb());
    EXPECT_NEAR(tiles[0].fill.alphaF(), 0.78, 0.001);
    EXPECT_FALSE(tiles[1].hasFill);
    EXPECT_EQ(tiles[1].help(), QStringLiteral("Tue, Mar 10"));
    EXPECT_TRUE(tiles[2].isToday);
    EXPECT_EQ(tiles[2].outlineWidth, 1.5);
    EXPECT_TRUE(tiles[3].isFuture);
    EXPECT_EQ(tiles[3].outlineWidth, 1);
    EXPECT_EQ(picture.tileList().size(), 7);
}

TEST(RhythmCard, YearComesAsOneMapAndMonthByMonth) {
    const std::vector<Session> log = {worked("2024-03-09T09:00:00Z", 90),
                                      worked("2026-03-09T09:00:00Z", 90)};
    const auto stats = WrappedStats::compute(log, WrappedPeriod::AllTime, settings());
    const auto card = reviewcards::rhythm(stats, settings(), 2024, 9);
    EXPECT_TRUE(card.picture.isYear());
    EXPECT_EQ(card.picture.year, 2024);
    EXPECT_EQ(card.picture.tileList().size() % 7, 0);
    ASSERT_EQ(card.picture.months.size(), 12U);
    // 2024-02-01 was a Thursday.
    EXPECT_FALSE(card.picture.months[1].front()[2].isDay);
    EXPECT_EQ(card.picture.months[1].front()[2].help(), QString());
    EXPECT_EQ(card.picture.months[1].front()[3].help(), QStringLiteral("Thu, Feb 1"));
    EXPECT_EQ(card.picture.monthList().size(), 12);
    ASSERT_EQ(card.years.size(), 2U);
    EXPECT_EQ(card.years[1].label, QStringLiteral("Show 2024"));
    ASSERT_EQ(card.yearList().size(), 2);
    EXPECT_EQ(card.yearList()[0].value<YearChoice>().year, 2026);
    EXPECT_TRUE(reviewcards::rhythm(week(log), settings(), std::nullopt, 9).years.empty());
}

TEST(RhythmCard, AYearHasTheNamesOfItsMonths) {
    const std::vector<Session> log = {worked("2026-03-09T09:00:00Z", 60)};
    const auto stats = WrappedStats::compute(log, WrappedPeriod::AllTime, settings());
    const auto picture = reviewcards::rhythmPicture(stats, settings(), 2026);
    ASSERT_EQ(picture.monthNames.size(), 12);
    EXPECT_EQ(picture.monthNames.first(), QStringLiteral("Jan"));
    EXPECT_EQ(picture.monthNames.last(), QStringLiteral("Dec"));
    EXPECT_TRUE(reviewcards::rhythmPicture(week({}), settings(), 2026).monthNames.isEmpty());
}

} // namespace
} // namespace vantle
