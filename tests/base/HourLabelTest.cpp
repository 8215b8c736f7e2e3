#include "base/HourLabel.h"

#include "base/Decimals.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

TEST(HourLabel, FollowsTheClockOfTheLocale) {
    const auto label = [](int hour, const char* locale) {
        return hourLabel(hour, QLatin1String(locale));
    };
    // ICU writes a narrow blank before the mark of the half of the day.
    EXPECT_EQ(label(0, "en_US"), QStringLiteral("12\u202FAM"));
    EXPECT_EQ(label(9, "en_US"), QStringLiteral("9\u202FAM"));
    EXPECT_EQ(label(21, "en_US"), QStringLiteral("9\u202FPM"));
    EXPECT_EQ(label(9, "en_GB"), QStringLiteral("09"));
    EXPECT_EQ(label(9, "de_DE"), QStringLiteral("09 Uhr"));
    EXPECT_EQ(label(9, "ja_JP"), QStringLiteral("9時"));
    EXPECT_EQ(label(9, "ar_EG"), QStringLiteral("٩ ص"));
}

TEST(HourLabel, HasAWordForEveryHourWhereTheMachineHasNoLocale) {
    for (int hour = 0; hour < 24; ++hour)
        EXPECT_FALSE(hourLabel(hour, QString()).isEmpty());
}

TEST(Decimals, AreThoseOfPrintf) {
    EXPECT_EQ(fixedDecimals(1.25, 1), QStringLiteral("1.2")); // a tie goes to the even digit
    EXPECT_EQ(fixedDecimals(1.35, 1), QStringLiteral("1.4"));
    EXPECT_EQ(fixedDecimals(2.5, 0), QStringLiteral("2"));
    EXPECT_EQ(fixedDecimals(-0.04, 1), QStringLiteral("-0.0"));
    EXPECT_EQ(fixedDecimals(1e308, 1).size(), 311);
}

} // namespace
} // namespace vantle
