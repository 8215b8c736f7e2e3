#include "base/LocalTime.h"

#include "base/Iso8601.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>

namespace vantle {
namespace {

Calendar weeksFrom(const char* zone, int firstWeekday = 2) {
    return {QLatin1String(zone), firstWeekday, 4, QStringLiteral("en_US")};
}

Date moment(const char* text) { return iso8601::parse(text).value(); }

TEST(LocalTime, ReadsTheWallClockOnBothSidesOfAChange) {
    LocalTime berlin(weeksFrom("Europe/Berlin"));
    EXPECT_EQ(berlin.at(moment("2026-03-29T00:59:59Z")).second, 2 * 3600 - 1);
    EXPECT_EQ(berlin.at(moment("2026-03-29T01:00:00Z")).hour(), 3);
    EXPECT_EQ(berlin.at(moment("2026-10-25T00:30:00Z")).hour(), 2);
    EXPECT_EQ(berlin.at(moment("2026-10-25T01:30:00Z")).hour(), 2);
    EXPECT_EQ(berlin.at(moment("2026-10-25T01:30:00Z")).minute(), 30);
}

TEST(LocalTime, CutsFractionsDownwards) {
    LocalTime utc(weeksFrom("UTC"));
    const auto before = utc.at(dateFromEpoch(-0.0001));
    EXPECT_EQ(before.day, -1);
    EXPECT_EQ(before.second, 86399);
    EXPECT_EQ(utc.at(dateFromEpoch(0.9)).second, 0);
}

TEST(LocalTime, KnowsYearsAndMonths) {
    LocalTime utc(weeksFrom("UTC"));
    EXPECT_EQ(utc.yearOf(utc.at(moment("2026-12-31T23:59:59Z")).day), 2026);
    EXPECT_EQ(utc.yearOf(utc.at(moment("2027-01-01T00:00:00Z")).day), 2027);
    EXPECT_EQ(utc.yearOf(utc.at(moment("1969-12-31T23:59:59Z")).day), 1969);
    const auto first = utc.firstOfMonth(utc.at(moment("2024-02-29T12:00:00Z")).day);
    EXPECT_EQ(utc.startOfDay(first), moment("2024-02-01T00:00:00Z"));
}

TEST(LocalTime, CountsYearsAndMonthsByTheCalendarOfTheLocale) {
    struct Case {
        const char* locale;
        int year;
        const char* firstOfMonth;
        const char* firstOfYear;
    };
    // 2026-06-15 is 25 Khordad 1405, the 15th of June 2569, and 29 Dhu al-Hijja 1447.
    for (const auto& [locale, year, month, firstOfYear] :
         {Case{"en_US", 2026, "2026-06-01T00:00:00Z", "2026-01-01T00:00:00Z"},
          Case{"fa_IR", 1405, "2026-05-22T00:00:00Z", "2026-03-21T00:00:00Z"},
          Case{"th_TH", 2569, "2026-06-01T00:00:00Z", "2026-01-01T00:00:00Z"},
          Case{"ar_SA", 1447, "2026-05-18T00:00:00Z", "2025-06-26T00:00:00Z"},
          // Eras and leap months stand in no grid: there the years are Gregorian.
          Case{"ja_JP@calendar=japanese", 2026, "2026-06-01T00:00:00Z", "2026-01-01T00:00:00Z"},
          Case{"he_IL@calendar=hebrew", 2026, "2026-06-01T00:00:00Z", "2026-01-01T00:00:00Z"}}) {
        LocalTime local({QStringLiteral("UTC"), 1, 1, QLatin1String(locale)});
        const auto day = local.at(moment("2026-06-15T12:00:00Z")).day;
        EXPECT_EQ(local.yearOf(day), year) << locale;
        EXPECT_EQ(local.startOfDay(local.firstOfMonth(day)), moment(month)) << locale;
        EXPECT_EQ(local.startOfDay(local.firstOfYear(year)), moment(firstOfYear)) << locale;
        EXPECT_EQ(local.yearOf(local.firstOfYear(year)), year) << locale;
        EXPECT_EQ(local.yearOf(local.firstOfYear(year) - 1), year - 1) << locale;
    }
}

TEST(LocalTime, EveryCalendarReachesAsFarAsItsDays) {
    constexpr double kForever = std::numeric_limits<double>::infinity();
    for (const char* locale : {"en_US", "fa_IR", "th_TH", "ar_SA"})
        for (const double epoch : {-kForever, kForever}) {
            LocalTime local({QStringLiteral("UTC"), 1, 1, QLatin1String(locale)});
            const auto day = local.at(dateFromEpoch(epoch)).day;
            const int year = local.yearOf(day);
            EXPECT_LE(local.firstOfYear(year), local.firstOfMonth(day)) << locale;
            EXPECT_LE(local.firstOfMonth(day), day) << locale;
            EXPECT_GT(local.firstOfYear(year + 1), day) << locale;
        }
}

TEST(LocalTime, ASkippedDayStartsWithTheNextOne) {
    // Samoa went over the date line, and had no 30 December.
    LocalTime apia(weeksFrom("Pacific/Apia"));
    const auto last = apia.at(moment("2011-12-30T09:59:59Z")).day;
    EXPECT_EQ(apia.at(moment("2011-12-30T10:00:00Z")).day, last + 2);
    EXPECT_EQ(apia.startOfDay(last + 1), moment("2011-12-30T10:00:00Z"));
    EXPECT_EQ(apia.startOfDay(last + 2), moment("2011-12-30T10:00:00Z"));
}

TEST(LocalTime, AnUnknownZoneIsUtcWithoutWeeks) {
    LocalTime nowhere(weeksFrom("Middle/Earth"));
    EXPECT_FALSE(nowhere.knowsZone());
    EXPECT_EQ(nowhere.at(moment("2026-03-01T09:30:05Z")).hour(), 9);
    EXPECT_EQ(nowhere.firstOfWeek(0), std::nullopt);
}

TEST(LocalTime, SurvivesDatesThatAreNotNumbers) {
    LocalTime berlin(weeksFrom("Europe/Berlin"));
    for (const double epoch :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(), 1e300,
          -1e300, std::numeric_limits<double>::quiet_NaN()}) {
        const auto moment = berlin.at(dateFromEpoch(epoch));
        EXPECT_GE(moment.second, 0);
        EXPECT_LT(moment.second, 86400);
        EXPECT_NE(berlin.yearOf(moment.day), 0);
    }
}

RC_GTEST_PROP(LocalTime, AnswersAsTheCalendarDoes, ()) {
    const auto zone = *rc::gen::element<const char*>(
        "UTC", "Europe/Berlin", "America/New_York", "America/Sao_Paulo", "America/Havana",
        "America/St_Johns", "Australia/Lord_Howe", "Asia/Kathmandu", "Asia/Beirut");
    const Calendar calendar = weeksFrom(zone, *rc::gen::inRange(1, 8));
    LocalTime local(calendar);
    const auto dates =
        *rc::gen::container<std::vector<int>>(5, rc::gen::inRange<int>(-1500000000, 2000000000));
    for (const int epoch : dates) {
        const Date date = dateFromEpoch(epoch);
        const auto day = local.at(date).day;
        RC_ASSERT(local.startOfDay(day) == calendar.startOfDay(date));
        RC_ASSERT(local.at(local.startOfDay(day)).day == day);
        RC_ASSERT(local.startOfDay(local.firstOfWeek(day).value()) ==
                  calendar.startOfWeek(date).value());
    }
}

} // namespace
} // namespace vantle
