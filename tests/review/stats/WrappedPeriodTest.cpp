#include "review/stats/WrappedPeriod.h"

#include "review/stats/ReviewSamples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using namespace wrappedperiod;
using samples::at;
using samples::calendarIn;

const Calendar kBerlin = calendarIn(QStringLiteral("Europe/Berlin"));

TEST(WrappedPeriod, HasItsIdsInTheirOrder) {
    QStringList ids;
    for (const WrappedPeriod period : all) {
        ids << id(period);
        EXPECT_EQ(fromId(id(period)), period);
    }
    EXPECT_EQ(ids.join(QLatin1Char(' ')), QStringLiteral("today week month allTime lastWeek"));
    EXPECT_EQ(fromId(QStringLiteral("year")), std::nullopt);
}

TEST(WrappedPeriod, OffersLastWeekInNoPicker) {
    QStringList labels;
    for (const WrappedPeriod period : pickerCases)
        labels << pickerLabel(period);
    EXPECT_EQ(labels.join(QLatin1Char('|')), QStringLiteral("Today|Week|Month|All time"));
}

TEST(WrappedPeriod, NamesEachPeriodInItsOwnWords) {
    EXPECT_EQ(label(WrappedPeriod::Week), QStringLiteral("This week"));
    EXPECT_EQ(inSentence(WrappedPeriod::Month), QStringLiteral("this month"));
    EXPECT_EQ(fileSuffix(WrappedPeriod::AllTime), QStringLiteral("all-time"));
    EXPECT_EQ(summaryTitle(WrappedPeriod::AllTime), QStringLiteral("YOUR WORK, IN FULL"));
    EXPECT_EQ(summaryTitle(WrappedPeriod::LastWeek), QStringLiteral("YOUR WEEK, IN FULL"));
}

TEST(WrappedPeriod, BeginsAtLocalMidnight) {
    const Date now = at("2026-03-31T10:00:00Z"); // a Tuesday, two days into summer time
    EXPECT_EQ(start(WrappedPeriod::Today, now, kBerlin), at("2026-03-30T22:00:00Z"));
    EXPECT_EQ(start(WrappedPeriod::Week, now, kBerlin), at("2026-03-29T22:00:00Z"));
    EXPECT_EQ(start(WrappedPeriod::Month, now, kBerlin), at("2026-02-28T23:00:00Z"));
    EXPECT_EQ(start(WrappedPeriod::AllTime, now, kBerlin), std::nullopt);
    EXPECT_EQ(start(WrappedPeriod::LastWeek, now, kBerlin), at("2026-03-22T23:00:00Z"));
}

TEST(WrappedPeriod, OnlyLastWeekIsOver) {
    const Date now = at("2026-03-31T10:00:00Z");
    EXPECT_EQ(end(WrappedPeriod::LastWeek, now, kBerlin), at("2026-03-29T22:00:00Z"));
    for (const WrappedPeriod period : pickerCases)
        EXPECT_EQ(end(period, now, kBerlin), std::nullopt);
}

TEST(WrappedPeriod, CountsTheDaysThatHaveBegun) {
    const Date now = at("2026-03-31T10:00:00Z");
    EXPECT_EQ(daysElapsed(WrappedPeriod::Today, now, kBerlin), 1);
    EXPECT_EQ(daysElapsed(WrappedPeriod::Week, now, kBerlin), 2);
    EXPECT_EQ(daysElapsed(WrappedPeriod::Month, now, kBerlin), 31);
    EXPECT_EQ(daysElapsed(WrappedPeriod::AllTime, now, kBerlin), std::nullopt);
    // Seven of them although an hour was lost, or gained.
    EXPECT_EQ(daysElapsed(WrappedPeriod::LastWeek, now, kBerlin), 7);
    EXPECT_EQ(daysElapsed(WrappedPeriod::LastWeek, at("2026-10-27T10:00:00Z"), kBerlin), 7);
}

TEST(WrappedPeriod, AWeekMayBeginInTheYearBefore) {
    EXPECT_EQ(start(WrappedPeriod::Week, at("2026-01-01T12:00:00Z"), kBerlin),
              at("2025-12-28T23:00:00Z"));
    Calendar american = kBerlin;
    american.firstWeekday = 1;
    EXPECT_EQ(start(WrappedPeriod::Week, at("2026-01-01T12:00:00Z"), american),
              at("2025-12-27T23:00:00Z"));
}

TEST(WrappedPeriod, FallsBackToTheDayWhereTheCalendarHasNoWeeks) {
    const Calendar nowhere = calendarIn(QStringLiteral("Middle/Earth"));
    const Date now = at("2026-03-31T10:00:00Z");
    EXPECT_EQ(start(WrappedPeriod::Week, now, nowhere), nowhere.startOfDay(now));
    EXPECT_EQ(start(WrappedPeriod::Month, now, nowhere), nowhere.startOfDay(now));
    EXPECT_EQ(start(WrappedPeriod::LastWeek, now, nowhere), nowhere.startOfDay(now));
}

} // namespace
} // namespace vantle
