#include "surfaces/kit/text/TabularLayout.h"

#include <QFontDatabase>

#include <gtest/gtest.h>

namespace vantle::tabular {
namespace {

constexpr double kFontUnit = 1.0 / 64; // fonts keep lengths in these

QFont font(const char* family, int size, QFont::Weight weight, double spacing = 0.0) {
    QFont made(QString::fromLatin1(family));
    made.setPixelSize(size);
    made.setWeight(weight);
    made.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    return made;
}

double width(const char* text, const QFont& font) {
    return layOut(QString::fromLatin1(text), font).width;
}

const QFont kClock = font("Inter Display", 23, QFont::DemiBold, -0.23);
const QFont kRow = font("Inter", 13, QFont::Normal);

TEST(TabularLayout, CellsAreThoseOfTheFamilies) {
    EXPECT_NEAR(cellWidth(kRow), 0.648 * 13, 1e-9);
    EXPECT_NEAR(cellWidth(font("Inter", 13, QFont::Medium)), 0.659 * 13, 1e-9);
    EXPECT_NEAR(cellWidth(font("Inter", 13, QFont::DemiBold)), 0.671 * 13, 1e-9);
    EXPECT_NEAR(cellWidth(kClock), 0.622 * 23, 1e-9);
}

TEST(TabularLayout, AnotherFamilyGetsTheCellOfItsWidestDigit) {
    const double cell = cellWidth(font("DejaVu Sans", 20, QFont::Normal));
    EXPECT_GT(cell, 10.0);
    EXPECT_LT(cell, 16.0);
}

TEST(TabularLayout, AClockIsAsWideWhateverItShows) {
    EXPECT_DOUBLE_EQ(width("0:11:11", kClock), width("0:48:36", kClock));
    EXPECT_DOUBLE_EQ(width("81.1 h", kRow), width("84.0 h", kRow));
}

TEST(TabularLayout, TrackingCountsForEveryCharacter) {
    const QFont plain = font("Inter Display", 23, QFont::DemiBold);
    EXPECT_NEAR(width("1:48", plain) - width("1:48", kClock), 4 * 0.23, 4 * kFontUnit);
}

TEST(TabularLayout, ADigitStandsInTheMiddleOfItsCell) {
    const Line one = layOut(QStringLiteral(":1"), kRow);
    const Line eight = layOut(QStringLiteral(":8"), kRow);
    ASSERT_EQ(one.runs.size(), 1);
    EXPECT_GT(one.runs[0].positions()[1].x(), eight.runs[0].positions()[1].x());
    EXPECT_NEAR(one.width - width(":", kRow), cellWidth(kRow), 1e-9);
}

TEST(TabularLayout, ALineBeginsWhereItsFirstDigitDoes) {
    for (const char* text : {"1:48:36", "8:48:36"}) {
        const Line line = layOut(QString::fromLatin1(text), kClock);
        ASSERT_EQ(line.runs.size(), 1);
        EXPECT_DOUBLE_EQ(line.runs[0].positions()[0].x(), 0.0) << text;
    }
    // The digits behind the first one stand where they stood, seen from the end.
    const Line one = layOut(QStringLiteral("1:48:36"), kClock);
    const Line two = layOut(QStringLiteral("2:48:36"), kClock);
    for (qsizetype i = 1; i < 7; ++i)
        EXPECT_NEAR(one.width - one.runs[0].positions()[i].x(),
                    two.width - two.runs[0].positions()[i].x(), 1e-9);
}

TEST(TabularLayout, LettersKeepTheirOwnWidths) { EXPECT_LT(width("i", kRow), width("m", kRow)); }

TEST(TabularLayout, NothingIsSetAsNothing) { EXPECT_EQ(layOut(QString(), kRow).width, 0.0); }

TEST(TabularLayout, TextWhoseLettersJoinIsStillSet) {
    const Line line = layOut(QString::fromUtf8("e\u0301 12"), kRow);
    EXPECT_GT(line.width, 2 * cellWidth(kRow));
}

} // namespace
} // namespace vantle::tabular
