#include "review/RhythmMap.h"

#include "review/stats/ReviewSamples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using rhythmmap::Picture;
using samples::at;

constexpr std::uint32_t kAccent = 0x7A78FF;

RhythmDays daysIn(const QString& locale) {
    return {at("2026-03-11T12:00:00Z"), {QStringLiteral("UTC"), 2, 4, locale}, {}};
}

RhythmDays days() { return daysIn(QStringLiteral("en_US")); }

TEST(RhythmMap, WithoutActiveYearsShowsThisYearWithEveryTileEmpty) {
    const int year = rhythmmap::yearShown(std::nullopt, {}, days());
    EXPECT_EQ(year, 2026);
    EXPECT_TRUE(rhythmmap::yearChoices({}).empty());
    for (const auto& week : rhythmshape::yearWeeks(year, days()))
        for (const auto& day : week)
            EXPECT_TRUE(!day || day->isFuture || !rhythmmap::tile(*day, kAccent).fill);
}

TEST(RhythmMap, ShowsTheLastYearWithWorkUntilAnotherIsChosen) {
    const std::vector<int> years = {2025, 2023};
    EXPECT_EQ(rhythmmap::yearShown(std::nullopt, years, days()), 2025);
    EXPECT_EQ(rhythmmap::yearShown(2023, years, days()), 2023);
    EXPECT_EQ(rhythmmap::yearChoices(years), years);
    EXPECT_EQ(rhythmmap::yearChoiceLabel(2023), QStringLiteral("Show 2023"));
    EXPECT_TRUE(rhythmmap::yearChoices({2025}).empty()) << "one year is no choice";
}

TEST(RhythmMap, HoursOnABoundaryTakeTheNextStepUp) {
    EXPECT_EQ(rhythmmap::opacity(0), std::nullopt);
    EXPECT_EQ(rhythmmap::opacity(0.0083), std::nullopt);
    EXPECT_EQ(rhythmmap::opacity(1.0 / 120), 0.35);
    EXPECT_EQ(rhythmmap::opacity(0.4999), 0.35);
    EXPECT_EQ(rhythmmap::opacity(0.5), 0.55);
    EXPECT_EQ(rhythmmap::opacity(0.9999), 0.55);
    EXPECT_EQ(rhythmmap::opacity(1), 0.78);
    EXPECT_EQ(rhythmmap::opacity(1.9999), 0.78);
    EXPECT_EQ(rhythmmap::opacity(2), 1.0);
    EXPECT_EQ(rhythmmap::opacity(20), 1.0);
}

TEST(RhythmMap, DayWithoutAColourUsesTheAccent) {
    GridDay day;
    day.hours = 1;
    EXPECT_EQ(rhythmmap::tile(day, kAccent).fill, kAccent);
    day.color = 0x30D158;
    EXPECT_EQ(rhythmmap::tile(day, kAccent).fill, 0x30D158U);
    EXPECT_EQ(rhythmmap::tile(day, kAccent).fillOpacity, 0.78);
    EXPECT_FALSE(rhythmmap::tile(day, kAccent).outline);
}

TEST(RhythmMap, FutureDaysAreFaintAndTodayIsOutlined) {
    const auto week = rhythmshape::weekDays(WrappedPeriod::Week, days()); // on a Wednesday
    const auto today = rhythmmap::tile(week[2], kAccent);
    EXPECT_FALSE(today.fill);
    ASSERT_TRUE(today.outline);
    EXPECT_EQ(today.outline->opacity, 0.38);
    EXPECT_EQ(today.outline->width, 1.5);
    const auto tomorrow = rhythmmap::tile(week[3], kAccent);
    EXPECT_EQ(tomorrow.fill, 0xFFFFFFU);
    EXPECT_EQ(tomorrow.fillOpacity, 0.02);
    ASSERT_TRUE(tomorrow.outline);
    EXPECT_EQ(tomorrow.outline->opacity, 0.05);
    EXPECT_FALSE(tomorrow.outline->width);
    EXPECT_FALSE(rhythmmap::tile(week[1], kAccent).outline);
}

TEST(RhythmMap, EachPeriodHasItsPictureAndItsWords) {
    const auto caption = [](WrappedPeriod period) {
        return rhythmmap::caption(period, 2025, days());
    };
    const QString rest = QStringLiteral(", day by day. Brighter is more time.");
    EXPECT_EQ(caption(WrappedPeriod::Today), QStringLiteral("This week") + rest);
    EXPECT_EQ(caption(WrappedPeriod::Week), QStringLiteral("This week") + rest);
    EXPECT_EQ(caption(WrappedPeriod::LastWeek), QStringLiteral("Last week") + rest);
    EXPECT_EQ(caption(WrappedPeriod::Month), QStringLiteral("March") + rest);
    EXPECT_EQ(caption(WrappedPeriod::AllTime), QStringLiteral("2025") + rest);
    EXPECT_EQ(rhythmmap::picture(WrappedPeriod::Today), Picture::Week);
    EXPECT_EQ(rhythmmap::picture(WrappedPeriod::LastWeek), Picture::Week);
    EXPECT_EQ(rhythmmap::picture(WrappedPeriod::Month), Picture::Month);
    EXPECT_EQ(rhythmmap::picture(WrappedPeriod::AllTime), Picture::Year);
    EXPECT_EQ(rhythmmap::label(WrappedPeriod::Month, 2025),
              QStringLiteral("Daily activity this month"));
    EXPECT_EQ(rhythmmap::label(WrappedPeriod::AllTime, 2025),
              QStringLiteral("Daily activity across 2025, week by week"));
    EXPECT_TRUE(rhythmmap::label(WrappedPeriod::Week, 2025).isEmpty());
}

TEST(RhythmMap, MonthAndWeekdaysAreNamedInTheLanguageOfTheCalendar) {
    EXPECT_EQ(rhythmmap::caption(WrappedPeriod::Month, 2026, daysIn(QStringLiteral("de_DE"))),
              QStringLiteral("März, day by day. Brighter is more time."));
    EXPECT_EQ(rhythmmap::headerLetters(daysIn(QStringLiteral("de_DE")).calendar).join(u' '),
              QStringLiteral("M D M D F S S"));
}

TEST(RhythmMap, LettersBeginWithTheFirstWeekday) {
    const auto letters = [](int firstWeekday) {
        return rhythmmap::headerLetters({QStringLiteral("Pacific/Auckland"), firstWeekday, 1})
            .join(u' ');
    };
    EXPECT_EQ(letters(1), QStringLiteral("S M T W T F S"));
    EXPECT_EQ(letters(2), QStringLiteral("M T W T F S S"));
    EXPECT_EQ(letters(7), QStringLiteral("S S M T W T F"));
}

TEST(RhythmMap, BarsAreRelativeToTheHighest) {
    EXPECT_EQ(rhythmmap::startBars(std::array{1, 0, 4, 2}), (std::vector<double>{0.25, 0, 1, 0.5}));
    EXPECT_EQ(rhythmmap::startBars(std::array{0, 0}), (std::vector<double>{0, 0}));
    EXPECT_TRUE(rhythmmap::startBars({}).empty());
}

TEST(RhythmMap, TilesOfAWeekGrowOneAfterTheOther) {
    EXPECT_DOUBLE_EQ(rhythmmap::weekDelay(0), 0.2);
    EXPECT_DOUBLE_EQ(rhythmmap::weekDelay(6), 0.5);
}

TEST(RhythmMap, MonthInRightToLeftLettersLeavesTheCaptionLeftToRight) {
    for (const char* locale : {"he_IL", "fa_IR", "ar_EG"}) {
        const QString caption =
            rhythmmap::caption(WrappedPeriod::Month, 2026, daysIn(QLatin1String(locale)));
        EXPECT_FALSE(caption.isRightToLeft()) << locale;
        EXPECT_TRUE(caption.endsWith(QStringLiteral(", day by day. Brighter is more time.")));
    }
}

TEST(RhythmMap, MonthIsThatOfTheGrid) {
    const RhythmDays persian = daysIn(QStringLiteral("fa_IR"));
    EXPECT_TRUE(rhythmmap::caption(WrappedPeriod::Month, 1404, persian)
                    .contains(QStringLiteral("اسفند"))); // from 20 February on
    EXPECT_EQ(rhythmmap::yearShown(std::nullopt, {}, persian), 1404);
}

} // namespace
} // namespace vantle
