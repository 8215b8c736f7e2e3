#include "base/Calendar.h"

#include "base/Iso8601.h"
#include "support/EnvironmentVariable.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <limits>

namespace vantle {
namespace {

using tests::EnvironmentVariable;

constexpr int kSunday = 1;
constexpr int kMonday = 2;
constexpr double kDay = 86400.0;

Calendar calendarIn(const char* zone, int firstWeekday = kMonday, int minimalDays = 4) {
    return {QLatin1String(zone), firstWeekday, minimalDays, QStringLiteral("en_US")};
}

Date at(const char* text) { return iso8601::parse(text).value(); }

std::string textOf(std::optional<Date> date) {
    if (!date) return "none";
    const auto text = iso8601::format(*date);
    return text ? std::string(text->data(), text->size()) : "no text";
}

TEST(Calendar, StartsTheDayAtLocalMidnight) {
    const Calendar berlin = calendarIn("Europe/Berlin");
    EXPECT_EQ(textOf(berlin.startOfDay(at("2026-01-15T12:00:00Z"))), "2026-01-14T23:00:00Z");
    EXPECT_EQ(textOf(berlin.startOfDay(at("2026-07-15T21:59:59Z"))), "2026-07-14T22:00:00Z");
    EXPECT_EQ(textOf(berlin.startOfDay(at("2026-07-15T22:00:00Z"))), "2026-07-15T22:00:00Z");
}

TEST(Calendar, KeepsAFractionOfASecondOutOfTheNextDay) {
    const Calendar utc = calendarIn("UTC");
    EXPECT_EQ(textOf(utc.startOfDay(at("2026-03-02T00:00:00Z") - Seconds(0.0001))),
              "2026-03-01T00:00:00Z");
}

TEST(Calendar, StartsADayWithoutMidnightAfterTheGap) {
    // Clocks went from 00:00 to 01:00.
    EXPECT_EQ(textOf(calendarIn("America/Sao_Paulo").startOfDay(at("2018-11-04T12:00:00Z"))),
              "2018-11-04T03:00:00Z");
}

TEST(Calendar, StartsADayWithTwoMidnightsAtTheFirst) {
    // Clocks went from 01:00 back to 00:00.
    EXPECT_EQ(textOf(calendarIn("America/Havana").startOfDay(at("2019-11-03T12:00:00Z"))),
              "2019-11-03T04:00:00Z");
    // Clocks went from 24:00 back to 23:00: the second 23:30 still belongs to the old day.
    const Calendar saoPaulo = calendarIn("America/Sao_Paulo");
    EXPECT_EQ(textOf(saoPaulo.startOfDay(at("2018-02-18T02:30:00Z"))), "2018-02-17T02:00:00Z");
    EXPECT_EQ(textOf(saoPaulo.startOfDay(at("2018-02-18T12:00:00Z"))), "2018-02-18T03:00:00Z");
}

TEST(Calendar, CountsDaysBefore1970AndBeforeTheGregorianReform) {
    const Calendar utc = calendarIn("UTC");
    EXPECT_EQ(textOf(utc.startOfDay(at("1969-07-20T20:17:40Z"))), "1969-07-20T00:00:00Z");
    EXPECT_EQ(textOf(utc.startOfDay(at("1500-02-28T12:00:00Z"))), "1500-02-28T00:00:00Z");
}

TEST(Calendar, ReturnsTheDateInAnUnknownZone) {
    const Date date = at("2026-03-01T09:30:05Z");
    EXPECT_EQ(calendarIn("Middle/Earth").startOfDay(date), date);
    EXPECT_EQ(calendarIn("").startOfDay(date), date);
    EXPECT_EQ(calendarIn("Middle/Earth").startOfWeek(date), std::nullopt);
    EXPECT_EQ(calendarIn("Middle/Earth").addingWeeks(date, 1), std::nullopt);
    EXPECT_EQ(calendarIn("Middle/Earth").weekOfYear(date), std::nullopt);
}

TEST(Calendar, StartsTheSameDaysAndWeeksInALocaleWithYearsOfItsOwn) {
    const Calendar berlin = calendarIn("Europe/Berlin");
    Calendar persian = berlin;
    persian.locale = QStringLiteral("fa_IR");
    for (const char* text : {"2026-03-20T23:30:00Z", "2026-03-29T12:00:00Z"}) {
        EXPECT_EQ(persian.startOfDay(at(text)), berlin.startOfDay(at(text))) << text;
        EXPECT_EQ(persian.startOfWeek(at(text)), berlin.startOfWeek(at(text))) << text;
    }
}

TEST(Calendar, SurvivesDatesThatAreNotNumbers) {
    const Calendar berlin = calendarIn("Europe/Berlin");
    for (const double epoch : {std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(), 1e300, -1e300}) {
        const Date date = dateFromEpoch(epoch);
        EXPECT_EQ(textOf(berlin.startOfDay(date)), "no text") << epoch;
    }
    EXPECT_EQ(textOf(berlin.startOfDay(dateFromEpoch(std::numeric_limits<double>::quiet_NaN()))),
              "no text");
}

TEST(Calendar, StartsTheWeekOnTheWeekdayOfTheRules) {
    const Date sunday = at("2026-03-01T12:00:00Z");
    EXPECT_EQ(textOf(calendarIn("UTC", kMonday).startOfWeek(sunday)), "2026-02-23T00:00:00Z");
    EXPECT_EQ(textOf(calendarIn("UTC", kSunday).startOfWeek(sunday)), "2026-03-01T00:00:00Z");
    EXPECT_EQ(textOf(calendarIn("UTC", 7).startOfWeek(sunday)), "2026-02-28T00:00:00Z");
}

TEST(Calendar, StartsTheWeekAtLocalMidnightAcrossAChangeOfTheClock) {
    const Calendar berlin = calendarIn("Europe/Berlin");
    EXPECT_EQ(textOf(berlin.startOfWeek(at("2026-03-29T12:00:00Z"))), "2026-03-22T23:00:00Z");
    EXPECT_EQ(textOf(berlin.startOfWeek(at("2026-10-25T12:00:00Z"))), "2026-10-18T22:00:00Z");
    // The first day of the week lost its midnight.
    EXPECT_EQ(
        textOf(calendarIn("America/Sao_Paulo", kSunday).startOfWeek(at("2018-11-07T12:00:00Z"))),
        "2018-11-04T03:00:00Z");
}

TEST(Calendar, AddsWeeksAndKeepsTheWallClock) {
    const Calendar berlin = calendarIn("Europe/Berlin");
    EXPECT_EQ(textOf(berlin.addingWeeks(at("2026-03-26T11:00:00Z"), 1)), "2026-04-02T10:00:00Z");
    EXPECT_EQ(textOf(berlin.addingWeeks(at("2026-03-26T11:00:00Z"), -1)), "2026-03-19T11:00:00Z");
    EXPECT_EQ(textOf(berlin.addingWeeks(at("2025-12-29T23:00:00Z"), 52)), "2026-12-28T23:00:00Z");
}

TEST(Calendar, NumbersWeeksByTheRules) {
    const auto week = [](const Calendar& calendar, const char* date) {
        return calendar.weekOfYear(at(date));
    };
    using Week = Calendar::WeekOfYear;
    const Calendar iso = calendarIn("UTC", kMonday, 4);
    const Calendar american = calendarIn("UTC", kSunday, 1);
    EXPECT_EQ(week(iso, "2021-01-03T12:00:00Z"), (Week{2020, 53}));
    EXPECT_EQ(week(iso, "2021-01-04T12:00:00Z"), (Week{2021, 1}));
    EXPECT_NE(week(iso, "2021-01-04T12:00:00Z"), week(iso, "2021-01-11T12:00:00Z"));
    EXPECT_NE(week(iso, "2021-01-04T12:00:00Z"), week(iso, "2022-01-03T12:00:00Z"));
    EXPECT_EQ(week(iso, "2024-12-30T12:00:00Z"), (Week{2025, 1}));
    EXPECT_EQ(week(american, "2021-01-02T12:00:00Z"), (Week{2021, 1}));
    EXPECT_EQ(week(american, "2019-12-31T12:00:00Z"), (Week{2020, 1}));
}

TEST(Calendar, UsesTheZoneAndWeekRulesOfThisMachine) {
    const EnvironmentVariable zone("TZ", "Europe/Berlin");
    {
        const EnvironmentVariable locale("LC_ALL", "de_DE.UTF-8");
        const Calendar calendar = Calendar::current();
        EXPECT_EQ(calendar.timeZone, QStringLiteral("Europe/Berlin"));
        EXPECT_EQ(calendar.firstWeekday, kMonday);
        EXPECT_EQ(calendar.minimalDays, 4);
        EXPECT_EQ(calendar.locale, QStringLiteral("de_DE"));
    }
    const EnvironmentVariable locale("LC_ALL", "en_US.UTF-8");
    EXPECT_EQ(Calendar::current().firstWeekday, kSunday);
    EXPECT_EQ(Calendar::current().minimalDays, 1);
}

TEST(Calendar, UsesTheZoneOfTheFileInTz) {
    const QTemporaryDir directory;
    ASSERT_TRUE(QDir(directory.path()).mkpath(QStringLiteral("zoneinfo/Asia")));
    const QString file = directory.filePath(QStringLiteral("zoneinfo/Asia/Tokyo"));
    ASSERT_TRUE(QFile(file).open(QIODevice::NewOnly));
    const QString link = directory.filePath(QStringLiteral("localtime"));
    ASSERT_TRUE(QFile::link(file, link));
    const EnvironmentVariable zone("TZ", ":" + QFile::encodeName(link));
    EXPECT_EQ(Calendar::current().timeZone, QStringLiteral("Asia/Tokyo"));
}

TEST(Calendar, FallsBackToAKnownZone) {
    for (const char* name : {"", "Middle/Earth", ":/none", "/etc/localtime", ":/etc/localtime"}) {
        const EnvironmentVariable zone("TZ", name);
        EXPECT_NE(Calendar::current().startOfWeek(at("2026-03-01T12:00:00Z")), std::nullopt)
            << name << " gave " << Calendar::current().timeZone.toStdString();
    }
}

TEST(Calendar, PrefersTheLocaleForTimesToThatForMessages) {
    const EnvironmentVariable all("LC_ALL", "");
    const EnvironmentVariable times("LC_TIME", "fr_FR.UTF-8");
    const EnvironmentVariable messages("LANG", "en_US.UTF-8");
    EXPECT_EQ(Calendar::current().locale, QStringLiteral("fr_FR"));
}

TEST(Calendar, WorksWithoutALocale) {
    for (const char* name : {"C", "C.UTF-8", "POSIX"}) {
        const EnvironmentVariable locale("LC_ALL", name);
        const Calendar calendar = Calendar::current();
        EXPECT_NE(calendar.startOfWeek(at("2026-03-01T12:00:00Z")), std::nullopt) << name;
    }
    const EnvironmentVariable all("LC_ALL", {});
    const EnvironmentVariable times("LC_TIME", {});
    const EnvironmentVariable language("LANG", {});
    EXPECT_FALSE(Calendar::current().locale.isEmpty()) << "ICU's default";
}

RC_GTEST_PROP(Calendar, EveryMomentLiesInItsDayAndItsWeek, ()) {
    const auto zone = *rc::gen::element<const char*>("UTC", "Europe/Berlin", "America/New_York",
                                                     "America/Sao_Paulo", "America/Havana",
                                                     "Australia/Lord_Howe", "Asia/Kathmandu");
    const Calendar calendar = calendarIn(zone, *rc::gen::inRange(1, 8), *rc::gen::inRange(1, 8));
    const Date date = dateFromEpoch(*rc::gen::inRange<int>(0, 2000000000));

    const Date day = calendar.startOfDay(date);
    RC_ASSERT(day <= date);
    RC_ASSERT((date - day).count() < kDay + 3600);
    RC_ASSERT(calendar.startOfDay(day) == day);

    const Date week = calendar.startOfWeek(date).value();
    RC_ASSERT(week <= day);
    RC_ASSERT((date - week).count() < 7 * kDay + 3600);
    RC_ASSERT(calendar.startOfWeek(week) == week);
    RC_ASSERT(calendar.weekOfYear(week) == calendar.weekOfYear(date));
    RC_ASSERT(calendar.weekOfYear(week - Seconds(1)) != calendar.weekOfYear(week));
}

} // namespace
} // namespace vantle
