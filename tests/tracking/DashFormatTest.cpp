#include "tracking/DashFormat.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using enum DurationStyle;

std::string inlineText(double hours, DurationStyle style) {
    return dashformat::inlineHours(hours, style).toStdString();
}
std::string duration(std::int64_t seconds, DurationStyle style) {
    return dashformat::sessionDuration(seconds, style).toStdString();
}
std::string stat(double hours, DurationStyle style) {
    const auto text = dashformat::statValue(hours, style);
    return (text.value + QLatin1Char('|') + text.unit).toStdString();
}

/// One line of the table: the text in each style.
void expectInline(double hours, const std::array<const char*, 4>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(inlineText(hours, durationstyle::all[i]), texts[i]) << hours;
}
void expectDuration(std::int64_t seconds, const std::array<const char*, 4>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(duration(seconds, durationstyle::all[i]), texts[i]) << seconds;
}

TEST(DashFormat, TheClockHasHoursOnlyFromAnHourOn) {
    EXPECT_EQ(dashformat::clock(0), QStringLiteral("0:00"));
    EXPECT_EQ(dashformat::clock(65), QStringLiteral("1:05"));
    EXPECT_EQ(dashformat::clock(3599), QStringLiteral("59:59"));
    EXPECT_EQ(dashformat::clock(3600), QStringLiteral("1:00:00"));
    EXPECT_EQ(dashformat::clock(3661), QStringLiteral("1:01:01"));
    EXPECT_EQ(dashformat::clock(36'000'000), QStringLiteral("10000:00:00"));
    EXPECT_EQ(dashformat::clock(-5), QStringLiteral("0:00"));
    EXPECT_EQ(dashformat::clock(std::numeric_limits<std::int64_t>::min()), QStringLiteral("0:00"));
}

TEST(DashFormat, LongDurationsAreExact) {
    for (const DurationStyle style : {HoursMinutes, Minutes})
        EXPECT_EQ(duration(1000 * 3600, style), inlineText(1000, style));
}

TEST(DashFormat, HoursInALineReadInEachStyle) {
    expectInline(0, {"0 min", "0 min", "0 min", "0:00"});
    expectInline(10.0 / 3600, {"10 sec", "<1 min", "<1 min", "0:10"});
    expectInline(40.0 / 3600, {"40 sec", "1 min", "1 min", "0:40"});
    expectInline(1.25, {"1.2 h", "1 h 15 min", "75 min", "1:15:00"});
    expectInline(3.5033333333333334, {"3.5 h", "3 h 30 min", "210 min", "3:30:12"});
}

TEST(DashFormat, ASessionsLengthReadsInEachStyle) {
    expectDuration(3660, {"1 h 1 min", "1 h 1 min", "61 min", "1:01:00"});
    expectDuration(45, {"45 sec", "1 min", "1 min", "0:45"});
    expectDuration(119, {"1 min", "2 min", "2 min", "1:59"});
    expectDuration(0, {"0 sec", "0 min", "0 min", "0:00"});
    expectDuration(-7, {"0 sec", "0 min", "0 min", "0:00"});
    expectDuration(7200, {"2 h", "2 h", "120 min", "2:00:00"});
    expectDuration(3599, {"59 min", "1 h", "60 min", "59:59"});
}

TEST(DashFormat, OneDecimalRoundsTheBinaryValue) {
    EXPECT_EQ(stat(1.25, Natural), "1.2|h");
    EXPECT_EQ(stat(2.25, Natural), "2.2|h");
    EXPECT_EQ(stat(3.25, Natural), "3.2|h");
    EXPECT_EQ(stat(1.75, Natural), "1.8|h");
    EXPECT_EQ(stat(1.35, Natural), "1.4|h");
    EXPECT_EQ(stat(2.0, Natural), "2|h");
    EXPECT_EQ(stat(1.96, Natural), "2|h");
    EXPECT_EQ(stat(10.0, Natural), "10|h");
}

TEST(DashFormat, FromAboutAHundredHoursOnThereAreNoDecimals) {
    EXPECT_EQ(stat(99.94, Natural), "99.9|h");
    EXPECT_EQ(stat(99.95, Natural), "100|h");
    EXPECT_EQ(stat(100.2, Natural), "100|h");
    EXPECT_EQ(stat(100.5, Natural), "100|h");
    EXPECT_EQ(stat(101.5, Natural), "102|h");
}

TEST(DashFormat, BelowAnHourTheLargeNumberIsMinutes) {
    for (const DurationStyle style : {Natural, HoursMinutes}) {
        EXPECT_EQ(stat(-1, style), "0|min");
        EXPECT_EQ(stat(0, style), "0|min");
        EXPECT_EQ(stat(0.5, style), "30|min");
        EXPECT_EQ(stat(59.4 / 60, style), "59|min");
        EXPECT_EQ(stat(59.5 / 60, style), "1|h");
    }
}

TEST(DashFormat, TheLargeNumberInTheOtherStyles) {
    EXPECT_EQ(stat(1.5, HoursMinutes), "1 h 30|min");
    EXPECT_EQ(stat(2.0, HoursMinutes), "2|h");
    EXPECT_EQ(stat(25, Minutes), "1,500|min");
    EXPECT_EQ(stat(-3, Minutes), "0|min");
    EXPECT_EQ(stat(1.5, Clock), "1:30:00|");
    EXPECT_EQ(stat(-1.5, Clock), "0:00|");
}

TEST(DashFormat, HalvesRoundAwayFromZero) {
    EXPECT_EQ(stat(0.5 / 60, Minutes), "1|min");
    EXPECT_EQ(stat(1.5 / 60, Minutes), "2|min");
    EXPECT_EQ(stat(2.5 / 60, Minutes), "3|min");
    EXPECT_EQ(inlineText(1.0 / 32, Clock), "1:53"); // 112.5 seconds
    EXPECT_EQ(inlineText(59.6 / 3600, Natural), "1 min");
    EXPECT_EQ(inlineText(59.4 / 3600, Natural), "59 sec");
}

TEST(DashFormat, AMilestoneJustReachedIsNotTheNext) {
    EXPECT_EQ(dashformat::nextMilestone(-1), 10);
    EXPECT_EQ(dashformat::nextMilestone(9.999), 10);
    EXPECT_EQ(dashformat::nextMilestone(10), 25);
    EXPECT_EQ(dashformat::nextMilestone(9999), 10000);
    EXPECT_EQ(dashformat::nextMilestone(10000), 10000);
    EXPECT_EQ(dashformat::nextMilestone(20000), 10000);
}

} // namespace
} // namespace vantle
