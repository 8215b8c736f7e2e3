#include "surfaces/quicklog/QuickLogDuration.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

QuickLogDuration typed(const char* hours, const char* minutes) {
    return {QString::fromUtf8(hours), QString::fromUtf8(minutes)};
}

std::optional<int> valid(const char* hours, const char* minutes) {
    return typed(hours, minutes).validMinutes();
}

TEST(QuickLogDuration, IsValidFromOneMinuteToSixteenHours) {
    EXPECT_EQ(valid("0", "1"), 1);
    EXPECT_EQ(valid("16", "0"), 960);
    EXPECT_EQ(valid("0", "960"), 960);
    EXPECT_EQ(valid("0", "0"), std::nullopt);
    EXPECT_EQ(valid("16", "1"), std::nullopt);
}

TEST(QuickLogDuration, EmptyFieldCountsAsZero) {
    EXPECT_EQ(valid("", "5"), 5);
    EXPECT_EQ(valid("1", ""), 60);
    EXPECT_EQ(valid("", ""), std::nullopt);
}

TEST(QuickLogDuration, AnythingButWholeNumbersIsNoTime) {
    for (const char* text : {"a", "1.5", "-1", "0x10", "1e2", "½", "--"}) {
        EXPECT_EQ(valid(text, "5"), std::nullopt) << text;
        EXPECT_EQ(valid("1", text), std::nullopt) << text;
    }
}

TEST(QuickLogDuration, NumbersBeyondAllMeasureAreTooLong) {
    EXPECT_EQ(valid("9223372036854775807", "9223372036854775807"), std::nullopt);
    EXPECT_EQ(valid("99999999999999999999999", "5"), std::nullopt);
    EXPECT_EQ(typed("9223372036854775807", "1").normalized(), typed("16", "0"));
}

TEST(QuickLogDuration, MinutesBeyondAnHourBecomeHoursOnLeaving) {
    EXPECT_EQ(typed("0", "90").normalized(), typed("1", "30"));
    EXPECT_EQ(typed("", "60").normalized(), typed("1", "0"));
    EXPECT_EQ(typed("16", "1").normalized(), typed("16", "0"));
}

TEST(QuickLogDuration, WhatIsNoTimeStaysOnLeaving) {
    EXPECT_EQ(typed("x", "90").normalized(), typed("x", "90"));
    EXPECT_EQ(typed("0", "0").normalized(), typed("0", "0"));
    EXPECT_EQ(typed("", "").normalized(), typed("", ""));
}

TEST(QuickLogDuration, StepsAreOfFiveMinutesAndStayInRange) {
    EXPECT_EQ(typed("0", "55").stepped(1), typed("1", "0"));
    EXPECT_EQ(typed("0", "3").stepped(-1), typed("0", "1"));
    EXPECT_EQ(typed("16", "0").stepped(1), typed("16", "0"));
}

TEST(QuickLogDuration, IsReadOutAsOneTime) {
    EXPECT_EQ(typed("1", "30").spoken(), QStringLiteral("1 hour 30 minutes"));
    EXPECT_EQ(typed("2", "0").spoken(), QStringLiteral("2 hours"));
    EXPECT_EQ(typed("", "1").spoken(), QStringLiteral("1 minute"));
    EXPECT_EQ(typed("0", "0").spoken(), QStringLiteral("0 minutes"));
    EXPECT_EQ(typed("x", "1").spoken(), QString());
}

TEST(QuickLogDuration, StepsStartFromWhatParses) {
    EXPECT_EQ(typed("x", "20").stepped(1), typed("0", "25"));
    EXPECT_EQ(typed("2", "x").stepped(-1), typed("1", "55"));
    EXPECT_EQ(typed("x", "x").stepped(1), typed("0", "5"));
    EXPECT_EQ(typed("20", "0").stepped(-1), typed("16", "0"));
}

} // namespace
} // namespace vantle
