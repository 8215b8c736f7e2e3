#include "base/DateText.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

/// Wednesday, 2025-11-19 13:05 UTC.
const Date kMoment = dateFromEpoch(1763557500);

Calendar calendar(const char* zone, const char* locale) {
    return {QString::fromLatin1(zone), 1, 1, QString::fromLatin1(locale)};
}

TEST(DateText, FixedFormKeepsItsOrderInAnyLanguage) {
    const QString pattern = QStringLiteral("EEE, MMM d");
    EXPECT_EQ(DateText::fixed(pattern, calendar("UTC", "en_US"))(kMoment),
              QStringLiteral("Wed, Nov 19"));
    EXPECT_EQ(DateText::fixed(pattern, calendar("UTC", "de_DE"))(kMoment),
              QStringLiteral("Mi., Nov. 19"));
}

TEST(DateText, IsThatOfTheCalendarsZone) {
    const QString pattern = QStringLiteral("MMM d · HH:mm");
    EXPECT_EQ(DateText::fixed(pattern, calendar("Asia/Tokyo", "en_US"))(kMoment),
              QStringLiteral("Nov 19 · 22:05"));
    EXPECT_EQ(DateText::fixed(pattern, calendar("Pacific/Kiritimati", "en_US"))(kMoment),
              QStringLiteral("Nov 20 · 03:05"));
}

TEST(DateText, TimeIsInTheClockOfTheLocale) {
    EXPECT_EQ(DateText::time(calendar("UTC", "en_US"))(kMoment), QStringLiteral("1:05\u202FPM"));
    EXPECT_EQ(DateText::time(calendar("UTC", "de_DE"))(kMoment), QStringLiteral("13:05"));
    EXPECT_EQ(DateText::time(calendar("UTC", "en_GB"))(kMoment), QStringLiteral("13:05"));
}

TEST(DateText, NonsenseForALocaleIsWrittenInSomeForm) {
    EXPECT_FALSE(DateText::time(calendar("UTC", "xx_YY"))(kMoment).isEmpty());
    const QByteArray tooLong(200, 'x');
    EXPECT_EQ(DateText::time(calendar("UTC", tooLong.constData()))(kMoment),
              DateText::time(calendar("UTC", ""))(kMoment));
}

} // namespace
} // namespace vantle
