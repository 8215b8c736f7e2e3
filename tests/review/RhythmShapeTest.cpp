#include "review/RhythmShape.h"

#include "base/DateText.h"
#include "review/stats/ReviewSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace vantle {
namespace {

using rhythmshape::Week;
using samples::at;

constexpr int kSunday = 1;
constexpr int kMonday = 2;
constexpr int kSaturday = 7;

RhythmDays daysAt(std::string_view now, int firstWeekday,
                  const QString& zone = QStringLiteral("UTC")) {
    return {at(now), {zone, firstWeekday, 1}, {}};
}

/// A grid as people draw it: a line a week, the day of the month, dots for blanks.
std::string drawn(const std::vector<Week>& weeks) {
    std::string text;
    for (const Week& week : weeks) {
        for (const auto& day : week) {
            // The day's number in "2026-03-09T...".
            text += day ? std::string(iso8601::format(day->date)->data() + 8, 2) : "..";
            text += ' ';
        }
        text.back() = '\n';
    }
    return text;
}

std::size_t count(const std::vector<Week>& weeks) {
    std::size_t days = 0;
    for (const Week& week : weeks)
        days += static_cast<std::size_t>(
            std::ranges::count_if(week, [](const auto& day) { return day.has_value(); }));
    return days;
}

TEST(RhythmShape, MonthHasBlanksBeforeItsFirstDayAndAfterItsLast) {
    EXPECT_EQ(drawn(rhythmshape::monthWeeks(daysAt("2026-04-15T12:00:00Z", kSunday))),
              ".. .. .. 01 02 03 04\n"
              "05 06 07 08 09 10 11\n"
              "12 13 14 15 16 17 18\n"
              "19 20 21 22 23 24 25\n"
              "26 27 28 29 30 .. ..\n");
    EXPECT_EQ(drawn(rhythmshape::monthWeeks(daysAt("2026-04-15T12:00:00Z", kMonday))),
              ".. .. 01 02 03 04 05\n"
              "06 07 08 09 10 11 12\n"
              "13 14 15 16 17 18 19\n"
              "20 21 22 23 24 25 26\n"
              "27 28 29 30 .. .. ..\n");
    EXPECT_EQ(drawn(rhythmshape::monthWeeks(daysAt("2026-04-15T12:00:00Z", kSaturday))),
              ".. .. .. .. 01 02 03\n"
              "04 05 06 07 08 09 10\n"
              "11 12 13 14 15 16 17\n"
              "18 19 20 21 22 23 24\n"
              "25 26 27 28 29 30 ..\n");
}

TEST(RhythmShape, MonthThatBeginsOnTheFirstWeekdayHasNoBlanksInFront) {
    EXPECT_EQ(drawn(rhythmshape::monthWeeks(daysAt("2026-02-15T12:00:00Z", kSunday))),
              "01 02 03 04 05 06 07\n"
              "08 09 10 11 12 13 14\n"
              "15 16 17 18 19 20 21\n"
              "22 23 24 25 26 27 28\n");
}

TEST(RhythmShape, FebruaryOfALeapYearHas29Days) {
    EXPECT_EQ(drawn(rhythmshape::monthWeeks(daysAt("2024-02-29T23:59:59Z", kMonday))),
              ".. .. .. 01 02 03 04\n"
              "05 06 07 08 09 10 11\n"
              "12 13 14 15 16 17 18\n"
              "19 20 21 22 23 24 25\n"
              "26 27 28 29 .. .. ..\n");
}

TEST(RhythmShape, MonthIsTheOneOnTheWallClock) {
    const auto weeks = rhythmshape::monthWeeks(
        daysAt("2026-03-31T22:30:00Z", kMonday, QStringLiteral("Europe/Berlin")));
    EXPECT_EQ(count(weeks), 30U) << "April has begun in Berlin";
    EXPECT_EQ(weeks.front()[2]->date, at("2026-03-31T22:00:00Z"));
}

TEST(RhythmShape, YearBeginsWithBlanksUpToItsFirstDay) {
    // 2026-01-01 is a Thursday, 2026-12-31 as well.
    const auto sundays = rhythmshape::yearWeeks(2026, daysAt("2026-03-11T12:00:00Z", kSunday));
    EXPECT_EQ(drawn({sundays.front(), sundays.back()}), ".. .. .. .. 01 02 03\n"
                                                        "27 28 29 30 31 .. ..\n");
    const auto mondays = rhythmshape::yearWeeks(2026, daysAt("2026-03-11T12:00:00Z", kMonday));
    EXPECT_EQ(drawn({mondays.front(), mondays.back()}), ".. .. .. 01 02 03 04\n"
                                                        "28 29 30 31 .. .. ..\n");
    const auto saturdays = rhythmshape::yearWeeks(2026, daysAt("2026-03-11T12:00:00Z", kSaturday));
    EXPECT_EQ(drawn({saturdays.front(), saturdays.back()}), ".. .. .. .. .. 01 02\n"
                                                            "26 27 28 29 30 31 ..\n");
    EXPECT_EQ(sundays.size(), 53U);
    EXPECT_EQ(mondays.size(), 53U);
    EXPECT_EQ(saturdays.size(), 53U);
}

TEST(RhythmShape, EveryDayOfAYearStandsThereOnce) {
    for (const int firstWeekday : {kSunday, kMonday, kSaturday})
        for (const int year : {1999, 2000, 2023, 2024, 2026, 2100}) {
            const bool isLeap = year == 2000 || year == 2024;
            const auto weeks =
                rhythmshape::yearWeeks(year, daysAt("2026-03-11T12:00:00Z", firstWeekday));
            EXPECT_EQ(count(weeks), isLeap ? 366U : 365U) << year << ' ' << firstWeekday;
        }
}

TEST(RhythmShape, LeapYearThatBeginsOnTheLastDayOfAWeekTakes54Weeks) {
    // 2000-01-01 was a Saturday.
    const auto weeks = rhythmshape::yearWeeks(2000, daysAt("2026-03-11T12:00:00Z", kSunday));
    ASSERT_EQ(weeks.size(), 54U);
    EXPECT_EQ(drawn({weeks.front(), weeks.back()}), ".. .. .. .. .. .. 01\n"
                                                    "31 .. .. .. .. .. ..\n");
}

TEST(RhythmShape, DaysWhoseWeekCountsForTheYearBeforeAreInTheirOwnYear) {
    // By weeks of four days at least, 2021-01-01 belongs to week 53 of 2020.
    RhythmDays days = daysAt("2026-03-11T12:00:00Z", kMonday);
    days.calendar.minimalDays = 4;
    ASSERT_EQ(days.calendar.weekOfYear(at("2021-01-01T00:00:00Z"))->yearForWeekOfYear, 2020);
    const auto weeks = rhythmshape::yearWeeks(2021, days);
    EXPECT_EQ(drawn({weeks.front()}), ".. .. .. .. 01 02 03\n");
    EXPECT_EQ(count(weeks), 365U);
    // 2024-12-30 belongs to week 1 of 2025.
    EXPECT_EQ(drawn({rhythmshape::yearWeeks(2024, days).back()}), "30 31 .. .. .. .. ..\n");
}

TEST(RhythmShape, GridsFollowTheCalendarThatTheirWordsAreWrittenIn) {
    RhythmDays days = daysAt("2026-06-15T12:00:00Z", kSaturday);
    days.calendar.locale = QStringLiteral("fa_IR");
    // 25 Khordad 1405: the month has 31 days, from Friday, 22 May.
    const auto month = rhythmshape::monthWeeks(days);
    EXPECT_EQ(count(month), 31U);
    ASSERT_TRUE(month.front()[6]);
    EXPECT_EQ(month.front()[6]->date, at("2026-05-22T00:00:00Z"));
    const DateText name = DateText::fixed(QStringLiteral("LLLL"), days.calendar);
    for (const Week& week : month)
        for (const auto& day : week)
            EXPECT_TRUE(!day || name(day->date) == name(days.now));

    EXPECT_EQ(rhythmshape::yearOf(days.now, days.calendar), 1405);
    std::vector<std::size_t> lengths;
    for (const auto& one : rhythmshape::yearMonths(1405, days))
        lengths.push_back(one.size());
    EXPECT_EQ(lengths, (std::vector<std::size_t>{31, 31, 31, 31, 31, 31, 30, 30, 30, 30, 30, 29}));
    EXPECT_EQ(count(rhythmshape::yearWeeks(1405, days)), 365U);
    EXPECT_EQ(rhythmshape::yearMonths(1405, days).front().front().date, at("2026-03-21T00:00:00Z"));
}

TEST(RhythmShape, YearByMonthsHasTheSameDays) {
    const RhythmDays days = daysAt("2024-03-11T12:00:00Z", kSaturday);
    const auto months = rhythmshape::yearMonths(2024, days);
    std::vector<std::size_t> lengths;
    std::vector<GridDay> all;
    for (const auto& month : months) {
        lengths.push_back(month.size());
        all.insert(all.end(), month.begin(), month.end());
    }
    EXPECT_EQ(lengths, (std::vector<std::size_t>{31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}));
    std::vector<GridDay> inWeeks;
    for (const Week& week : rhythmshape::yearWeeks(2024, days))
        for (const auto& day : week)
            if (day) inWeeks.push_back(*day);
    EXPECT_EQ(all, inWeeks);
}

TEST(RhythmShape, WeekOfTodayAndOfThisWeekAreTheSame) {
    const RhythmDays days = daysAt("2026-03-11T12:00:00Z", kMonday); // a Wednesday
    const auto week = rhythmshape::weekDays(WrappedPeriod::Week, days);
    ASSERT_EQ(week.size(), 7U);
    EXPECT_EQ(week.front().date, at("2026-03-09T00:00:00Z"));
    EXPECT_EQ(rhythmshape::weekDays(WrappedPeriod::Today, days), week);
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(week[i].isToday, i == 2) << i;
        EXPECT_EQ(week[i].isFuture, i > 2) << i;
    }
}

TEST(RhythmShape, LastWeekHasNoFutureAndNoToday) {
    const RhythmDays days = daysAt("2026-03-11T12:00:00Z", kSunday);
    const auto week = rhythmshape::weekDays(WrappedPeriod::LastWeek, days);
    ASSERT_EQ(week.size(), 7U);
    EXPECT_EQ(week.front().date, at("2026-03-01T00:00:00Z"));
    for (const GridDay& day : week)
        EXPECT_FALSE(day.isFuture || day.isToday);
}

TEST(RhythmShape, AllTimeHasNoWeek) {
    EXPECT_TRUE(
        rhythmshape::weekDays(WrappedPeriod::AllTime, daysAt("2026-03-11T12:00:00Z", kMonday))
            .empty());
}

TEST(RhythmShape, DaysKeepTheirFirstMomentWhenTheClockChanges) {
    // The clock goes forward on Sunday, 29 March.
    const auto week =
        rhythmshape::weekDays(WrappedPeriod::Week, daysAt("2026-03-29T12:00:00Z", kMonday,
                                                          QStringLiteral("Europe/Berlin")));
    EXPECT_EQ(week[5].date, at("2026-03-27T23:00:00Z"));
    EXPECT_EQ(week[6].date, at("2026-03-28T23:00:00Z"));
    EXPECT_TRUE(week[6].isToday);
}

TEST(RhythmShape, HoursAndColoursLieOnTheirDays) {
    RhythmDays days = daysAt("2026-03-11T12:00:00Z", kMonday);
    days.worked = {{at("2026-03-09T00:00:00Z"), 1.5, 0xFF375F},
                   {at("2026-03-11T00:00:00Z"), 0.25, std::nullopt}};
    const auto week = rhythmshape::weekDays(WrappedPeriod::Week, days);
    EXPECT_EQ(week[0].hours, 1.5);
    EXPECT_EQ(week[0].color, 0xFF375FU);
    EXPECT_EQ(week[1].hours, 0);
    EXPECT_FALSE(week[1].color);
    EXPECT_EQ(week[2].hours, 0.25);
    EXPECT_FALSE(week[2].color);
}

TEST(RhythmShape, CalendarThatKnowsNoWeeksGivesNothing) {
    const RhythmDays days = daysAt("2026-03-11T12:00:00Z", kMonday, QStringLiteral("No/Where"));
    EXPECT_TRUE(rhythmshape::weekDays(WrappedPeriod::Week, days).empty());
    EXPECT_TRUE(rhythmshape::monthWeeks(days).empty());
    EXPECT_TRUE(rhythmshape::yearWeeks(2026, days).empty());
}

TEST(RhythmShape, ReviewLendsItsDays) {
    const auto settings = samples::settingsAt("2026-03-11T12:00:00Z");
    const auto stats = WrappedStats::compute({samples::worked("2026-03-09T09:00:00Z", 90)},
                                             WrappedPeriod::Week, settings);
    const auto days = RhythmDays::of(stats, settings);
    ASSERT_EQ(days.worked.size(), 1U);
    EXPECT_EQ(days.worked[0].day, at("2026-03-09T00:00:00Z"));
    EXPECT_EQ(days.worked[0].hours, 1.5);
    EXPECT_EQ(days.worked[0].color, samples::seeds().front().hexRGB);
}

} // namespace
} // namespace vantle
