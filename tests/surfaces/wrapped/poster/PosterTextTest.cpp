#include "surfaces/wrapped/poster/PosterText.h"

#include "support/QtPrinters.h"
#include "surfaces/kit/text/Typeface.h"

#include <QFontDatabase>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace vantle {
namespace {

constexpr look::TypeStep kName = look::kType.namePoster;
constexpr look::TypeStep kSkill = look::kType.bodyMedium;
using postertext::font;

/// A line of text in white on black, its baseline at 40.
QImage drawn(const QString& text, const QBrush& brush = Qt::white) {
    QImage image(300, 60, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    postertext::draw(painter, {20, 40}, text, font(kSkill), brush);
    return image;
}

int litColumns(const QImage& image, int from, int to) {
    int count = 0;
    for (int x = from; x < to; ++x)
        for (int y = 0; y < image.height(); ++y)
            if (qGray(image.pixel(x, y)) > 40) {
                ++count;
                break;
            }
    return count;
}

TEST(PosterText, IsTheSameWhateverElseWasDrawnInItsFace) {
    const QString words = QStringLiteral("Rewriting the importer, 718.9 h");
    const QImage before = drawn(words);
    QImage other(300, 60, QImage::Format_RGB32);
    QPainter painter(&other);
    for (const int size : {11, 12, 17, 23, 40}) {
        QFont face = fontOf(kSkill);
        face.setPixelSize(size);
        painter.setFont(face);
        painter.drawText(20, 40, words);
    }
    painter.end();
    EXPECT_EQ(drawn(words), before);
}

TEST(PosterText, IsMadeSmallerUntilItFits) {
    const QString name = QStringLiteral("Extraordinarily Nightly");
    const QFont fitted = postertext::fitted(font(kName), name, 350);
    EXPECT_LE(postertext::width(name, fitted), 350);
    EXPECT_LT(fitted.pixelSize(), kName.size);
    EXPECT_NEAR(fitted.letterSpacing() / fitted.pixelSize(),
                font(kName).letterSpacing() / kName.size, 1e-3);
    EXPECT_EQ(postertext::fitted(font(kName), QStringLiteral("Night Owl"), 350), font(kName));
    EXPECT_EQ(postertext::fitted(font(kName), QString(400, QLatin1Char('m')), 350).pixelSize(),
              kName.size / 2);
}

TEST(PosterText, BreaksBetweenWordsAndEndsWithAnEllipsis) {
    const QFont face = font(kSkill);
    EXPECT_EQ(postertext::broken(QStringLiteral("one line"), face, 200, 2),
              QStringList{QStringLiteral("one line")});
    const QStringList two = postertext::broken(QStringLiteral("first words and more"), face, 80, 2);
    ASSERT_EQ(two.size(), 2);
    EXPECT_EQ(two.join(QLatin1Char(' ')), QStringLiteral("first words and more"));
    const QStringList cut = postertext::broken(QStringLiteral("word ").repeated(30), face, 80, 2);
    ASSERT_EQ(cut.size(), 2);
    EXPECT_TRUE(cut[1].endsWith(QChar(0x2026)));
    for (const QString& line : cut)
        EXPECT_LE(postertext::width(line, face), 80);
    EXPECT_TRUE(postertext::broken({}, face, 80, 2).isEmpty());
}

TEST(PosterText, ATextFromTheRightBeginsAtTheSamePlace) {
    const QString hebrew = QStringLiteral("עיצוב ממשק");
    const QImage image = drawn(hebrew);
    EXPECT_EQ(litColumns(image, 0, 18), 0);
    EXPECT_GT(litColumns(image, 18, 40), 0);
    const int end = 20 + static_cast<int>(postertext::width(hebrew, font(kSkill)));
    EXPECT_EQ(litColumns(image, end + 3, 300), 0);
}

TEST(PosterText, EndsOrStandsAroundAPoint) {
    QImage image(300, 60, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    postertext::drawBefore(painter, {100, 40}, QStringLiteral("8.2 h"), font(kSkill), Qt::white);
    postertext::drawAround(painter, {200, 40}, QStringLiteral("M"), font(kSkill), Qt::white);
    EXPECT_EQ(litColumns(image, 100, 190), 0);
    EXPECT_GT(litColumns(image, 90, 100), 0);
    EXPECT_GT(litColumns(image, 190, 200), 0);
    EXPECT_GT(litColumns(image, 200, 210), 0);
}

TEST(PosterText, EmojiDrawWhatTheMachineHasForThem) {
    const QImage image = drawn(QStringLiteral("🎨 Design"));
    EXPECT_GT(litColumns(image, 30, 100), 10);
    EXPECT_EQ(litColumns(image, 0, 18), 0);
}

TEST(PosterText, LeavesThePainterWhereItWas) {
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    postertext::draw(painter, {3, 4}, QStringLiteral("a"), font(kSkill), Qt::white);
    EXPECT_TRUE(painter.transform().isIdentity());
}

} // namespace
} // namespace vantle
