// Texts that wrap: even lines, and none of a single word.
#include "surfaces/kit/text/Breadth.h"

#include "surfaces/kit/text/Typeface.h"

#include <QStringList>
#include <QTextLayout>

#include <gtest/gtest.h>

#include <algorithm>

namespace vantle {
namespace {

struct Set {
    QStringList lines;
    QList<double> widths;
};

Set setAt(const QString& text, const QFont& font, double breadth, double first = 1e6) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    Set set;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(set.lines.isEmpty() ? std::min(breadth, first) : breadth);
        set.lines << text.mid(line.textStart(), line.textLength()).trimmed();
        set.widths << line.naturalTextWidth();
    }
    layout.endLayout();
    return set;
}

QFont caption() { return fontOf(look::kType.caption); }

Set balanced(const QString& text, double width, double firstLineRoom = 0) {
    const double breadth = balancedBreadth(text, caption(), {width, firstLineRoom});
    EXPECT_LE(breadth, width);
    return setAt(text, caption(), breadth, width - firstLineRoom);
}

const QString kTwoLines =
    QStringLiteral("For work the clock didn’t see. It joins your totals and is marked as manual.");
const QString kGerman =
    QStringLiteral("Für Arbeit, die die Uhr nicht gesehen hat. Sie zählt in deinen Summen mit und "
                   "wird als manuell gekennzeichnet.");
const QString kHebrew =
    QString::fromUtf8("הזמן שנוסף כאן נספר בסך הכול שלך ומסומן בתור זמן שנוסף ביד, לא בשעון.");

TEST(Breadth, TwoLinesAreEven) {
    for (const QString& text : {kTwoLines, kGerman, kHebrew}) {
        const double whole = setAt(text, caption(), 1e6).widths[0];
        const double width = whole * 0.9; // leaves a word or two on the second line
        ASSERT_EQ(setAt(text, caption(), width).lines.size(), 2) << qPrintable(text);
        const Set set = balanced(text, width);
        ASSERT_EQ(set.lines.size(), 2) << qPrintable(text);
        EXPECT_GT(set.widths[1] / set.widths[0], 0.75) << qPrintable(set.lines.join(u" / "));
    }
}

TEST(Breadth, NoTextEndsInALineOfOneWord) {
    for (const QString& text : {kTwoLines, kGerman, kHebrew}) {
        const double whole = setAt(text, caption(), 1e6).widths[0];
        for (double width = whole; width > whole / 6; width -= 7) {
            const Set plain = setAt(text, caption(), width);
            const Set set = balanced(text, width);
            ASSERT_EQ(set.lines.size(), plain.lines.size()) << width << qPrintable(text);
            if (plain.lines.size() < 2 || !plain.lines.last().contains(u' ')) continue;
            EXPECT_TRUE(set.lines.last().contains(u' '))
                << width << " " << qPrintable(set.lines.join(u" / "));
        }
    }
}

TEST(Breadth, LongTextKeepsItsColumn) {
    const QString text = (kTwoLines + u' ').repeated(4).trimmed();
    const double width = setAt(text, caption(), 1e6).widths[0] / 3.5;
    ASSERT_GT(setAt(text, caption(), width).lines.size(), 2);
    ASSERT_TRUE(setAt(text, caption(), width).lines.last().contains(u' '));
    EXPECT_EQ(balancedBreadth(text, caption(), {width}), width);
}

TEST(Breadth, OneLineAndWordsThatAreTooLongKeepTheirColumn) {
    EXPECT_EQ(balancedBreadth(QStringLiteral("Short enough"), caption(), {300}), 300);
    EXPECT_EQ(balancedBreadth(QString(), caption(), {300}), 300);
    EXPECT_EQ(
        balancedBreadth(QStringLiteral("https://example.org/very/long/address/to/here and on"),
                        caption(), {100}),
        100);
}

TEST(Breadth, AColumnAsWideAsItsTextKeepsItInOneLine) {
    for (const QString& text : {QStringLiteral("Ready to focus"), kTwoLines, kHebrew}) {
        const double whole = setAt(text, caption(), 1e6).widths[0];
        for (const double less : {0.0, 0.3, 0.9})
            EXPECT_EQ(balancedBreadth(text, caption(), {whole - less, 0}), whole - less);
    }
}

TEST(Breadth, RoomAtTheEndOfTheFirstLineIsKeptFree) {
    const double whole = setAt(kTwoLines, caption(), 1e6).widths[0];
    const double width = whole * 0.8;
    const Set set = balanced(kTwoLines, width, 60);
    ASSERT_EQ(set.lines.size(), 2);
    EXPECT_LE(set.widths[0], width - 60);
}

} // namespace
} // namespace vantle
