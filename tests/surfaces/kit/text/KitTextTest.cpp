#include "surfaces/kit/text/KitText.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

namespace vantle {
namespace {

// A family of four, a flag, a letter with an accent of its own: one character each to the reader.
const QString kFamily =
    QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466");
const QString kFlag = QStringLiteral("\U0001F1F8\U0001F1EA");
const QString kAccented = QStringLiteral("e\u0301");

TEST(KitText, SaysWhichPageItIsAndWhatStandsOnIt) {
    EXPECT_EQ(KitText::place(0, 9), QStringLiteral("Page 1 of 9"));
    EXPECT_EQ(KitText::turnedTo(2, 9, QStringLiteral("%1 of 5")),
              QStringLiteral("Page 3 of 9. %1 of 5"));
    EXPECT_EQ(KitText::turnedTo(0, 0, QStringLiteral("Nothing this week yet")),
              QStringLiteral("Nothing this week yet"));
}

TEST(KitText, ColorsDigitsAreReadOutAfterItsName) {
    const QColor green = QColor::fromRgb(0x30D158);
    EXPECT_EQ(KitText::digits(green), QStringLiteral("Color 30D158"));
    EXPECT_EQ(KitText::digits(QColor::fromRgb(0x00000A)), QStringLiteral("Color 00000A"));
    EXPECT_EQ(KitText::swatch(green, true), QStringLiteral("Color 30D158, selected"));
    EXPECT_EQ(KitText::swatch(green, false), QStringLiteral("Color 30D158, not selected"));
}

TEST(KitText, ALimitCountsWhatTheUserSees) {
    const QString text = kFamily + kFlag + kAccented + QStringLiteral("x");
    EXPECT_EQ(KitText::count(text), 4);
    EXPECT_EQ(KitText::first(text, 4), text);
    EXPECT_EQ(KitText::first(text, 3), kFamily + kFlag + kAccented);
    EXPECT_EQ(KitText::first(text, 1), kFamily);
}

TEST(KitText, OfSixHundredCharactersFiveHundredStay) {
    EXPECT_EQ(KitText::first(QString(600, QLatin1Char('a')), 500), QString(500, QLatin1Char('a')));
}

TEST(KitText, PartsAreAlikeWhereTheWidestHasRoom) {
    const QStringList texts = {QStringLiteral("Today"), QStringLiteral("Last week")};
    EXPECT_EQ(KitText::partWidths(texts, QFont(), 12, 600), QList<double>({300, 300}));
    EXPECT_EQ(KitText::partWidths({}, QFont(), 12, 600), QList<double>());
}

TEST(KitText, WidestPartTakesFromTheOthersAndAllFillTheRoom) {
    const QStringList texts = {QStringLiteral("A week of quite a few words"), QStringLiteral("a"),
                               QStringLiteral("b")};
    const double needed = QFontMetricsF(QFont()).horizontalAdvance(texts[0]) + 12;
    const QList<double> widths = KitText::partWidths(texts, QFont(), 12, needed + 60);
    EXPECT_GE(widths[0], needed);
    EXPECT_NEAR(widths[0] + widths[1] + widths[2], needed + 60, 1e-6);
}

} // namespace
} // namespace vantle
