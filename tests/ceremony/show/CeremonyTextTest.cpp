// The title and the caption: what they measure, and what is in their pictures.
#include "ceremony/show/CeremonyFonts.h"
#include "ceremony/show/CeremonyTextImages.h"
#include "ceremony/show/CeremonyTextLayout.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace vantle {
namespace {

using ceremonytext::captionImage;
using ceremonytext::titleFontSize;
using ceremonytext::titleImage;

TEST(CeremonyText, TheTitleGrowsWithTheScreenWithinLimits) {
    EXPECT_EQ(titleFontSize(24), 34);
    EXPECT_EQ(titleFontSize(1000), 55); // 58 * 0.95 = 55.1
    EXPECT_EQ(titleFontSize(1344), 74); // 77.95 is rounded to 78 first
    EXPECT_EQ(titleFontSize(1440), 74);
    EXPECT_EQ(titleFontSize(6016), 74);
}

TEST(CeremonyText, ThePillHasRoomAroundTheLine) {
    const auto layout = ceremonytext::titleLayout(74, {800.3, 60.2, 15.1});
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->width, 2 * 41 + 801);
    EXPECT_EQ(layout->height, 2 * 25 + 76);
    EXPECT_DOUBLE_EQ(layout->textX, (883 - 800.3) / 2);
    EXPECT_DOUBLE_EQ(layout->textY, 15.1 + (126 - 75.3) / 2);
}

TEST(CeremonyText, TheCaptionHasAMarginOfTwoPoints) {
    const auto layout = ceremonytext::captionLayout({40.3, 9.2, 2.6});
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->width, 41 + 4);
    EXPECT_EQ(layout->height, 12 + 4);
    EXPECT_EQ(layout->textX, 2);
    EXPECT_DOUBLE_EQ(layout->textY, 2.6 + 2);
    // A line of one point is a picture.
    EXPECT_TRUE(ceremonytext::captionLayout({0.5, 0.5, 0}));
}

TEST(CeremonyText, NothingToShowIsNoPicture) {
    EXPECT_FALSE(ceremonytext::titleLayout(3, {0, 1, 0}));
    EXPECT_FALSE(ceremonytext::captionLayout({0, 9, 2}));
    EXPECT_FALSE(ceremonytext::captionLayout({40, 0, 0}));
    EXPECT_TRUE(captionImage(QString()).image.isNull());
    EXPECT_EQ(captionImage(QString()).size, QSizeF(0, 0));
}

TEST(CeremonyText, WithoutTheBundledTypefaceTheTitleIsHeavyAndThePillFitsIt) {
    ASSERT_FALSE(QFontDatabase::hasFamily(QLatin1String(ceremonyfonts::titleFamilyName)));
    const QFont font = ceremonyfonts::titleFont(74);
    EXPECT_GE(font.weight(), QFont::ExtraBold);
    EXPECT_EQ(font.pixelSize(), 74);
    const QString title = QStringLiteral("You are in Vantle");
    const auto image = titleImage(title, 1440);
    QFont unhinted = font;
    unhinted.setHintingPreference(QFont::PreferNoHinting);
    EXPECT_EQ(image.size.width(), std::ceil(QFontMetricsF(unhinted).horizontalAdvance(title)) + 82);
}

TEST(CeremonyText, AMissingFontFileIsNoMatter) {
    const QStringList before = QFontDatabase::families();
    ceremonyfonts::registerBundledFonts({QStringLiteral("/nowhere")});
    EXPECT_EQ(QFontDatabase::families(), before);
}

TEST(CeremonyText, TheTypefaceIsTakenFromTheFirstFolderThatHasIt) {
    // Any font file: what counts is that it is loaded from there.
    const QString any = QStringLiteral("/usr/share/fonts/opentype/inter/Inter-Regular.otf");
    const QTemporaryDir folder;
    const QString name = QLatin1String(ceremonyfonts::titleResourceName) + QLatin1String(".ttf");
    ASSERT_TRUE(QFile::copy(any, folder.filePath(name)));
    ASSERT_EQ(QFontDatabase::applicationFontFamilies(0), QStringList());
    ceremonyfonts::registerBundledFonts({QStringLiteral("/nowhere"), folder.path()});
    EXPECT_EQ(QFontDatabase::applicationFontFamilies(0), QStringList{QStringLiteral("Inter")});
    EXPECT_TRUE(QFontDatabase::removeApplicationFont(0));
}

TEST(CeremonyText, ThePillIsDarkWithRoundCornersAndWhiteLetters) {
    const QImage image = titleImage(QStringLiteral("You are in Vantle"), 1440).image;
    EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(image.devicePixelRatio(), 2);
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    const QColor ground = image.pixelColor(image.width() / 2, 8);
    EXPECT_EQ(ground.alpha(), qRound(0.7 * 255));
    EXPECT_EQ(ground.red(), 0);
    int white = 0;
    for (int x = 0; x < image.width(); ++x)
        white += image.pixel(x, image.height() / 2) == 0xFFFFFFFF ? 1 : 0;
    EXPECT_GT(white, image.width() / 20);
}

TEST(CeremonyText, ThePillHasAThinWhiteEdgeAlongItsOuterPixels) {
    const QImage image = titleImage(QStringLiteral("You are in Vantle"), 1440).image;
    const auto expectEdge = [&](const QPoint& at) {
        const QRgb edge = image.pixel(at); // premultiplied
        EXPECT_NEAR(qAlpha(edge), 0.16 * 255, 1) << at.x() << ' ' << at.y();
        EXPECT_EQ(qRed(edge), qAlpha(edge));
        EXPECT_EQ(qGreen(edge), qAlpha(edge));
        EXPECT_EQ(qBlue(edge), qAlpha(edge));
    };
    // The dark ground begins half a point, one pixel, further in.
    const int middleX = image.width() / 2;
    const int middleY = image.height() / 2;
    expectEdge({0, middleY});
    expectEdge({image.width() - 1, middleY});
    expectEdge({middleX, 0});
    expectEdge({middleX, image.height() - 1});
    EXPECT_NEAR(qAlpha(image.pixel(1, middleY)), (0.16 + 0.84 * 0.7) * 255, 2);
    EXPECT_EQ(qAlpha(image.pixel(3, middleY)), qRound(0.7 * 255));
}

TEST(CeremonyText, TheCornersOfThePillAreRoundBy20Points) {
    const QImage image = titleImage(QStringLiteral("You are in Vantle"), 1440).image;
    // The outside of the edge is half a point beyond the path.
    constexpr double kRadius = 20.5 * 2; // pixels
    int empty = 0;
    for (int y = 0; y < kRadius; ++y)
        for (int x = 0; x < kRadius; ++x)
            empty += qAlpha(image.pixel(x, y)) < 0.08 * 255 ? 1 : 0;
    EXPECT_NEAR(empty, (1 - 3.1416 / 4) * kRadius * kRadius, 8);
}

TEST(CeremonyText, TheLettersStandInTheMiddleOfThePill) {
    const QImage image = titleImage(QStringLiteral("You are in Vantle"), 1440).image;
    int left = image.width();
    int right = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 8; x < image.width() - 8; ++x) {
            if (qRed(image.pixel(x, y)) < 200) continue;
            left = std::min(left, x);
            right = std::max(right, x);
        }
    }
    EXPECT_NEAR(left, image.width() - right, 16);
}

TEST(CeremonyText, TheCaptionIsWhiteOnNothing) {
    const auto caption = captionImage(QStringLiteral("SEQ 02"));
    EXPECT_EQ(caption.image.pixelColor(0, 0).alpha(), 0);
    QFont font = ceremonyfonts::captionFont(11);
    font.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(font);
    EXPECT_EQ(caption.size.width(),
              std::ceil(metrics.horizontalAdvance(QStringLiteral("SEQ 02"))) + 4);
    EXPECT_EQ(caption.size.height(), std::ceil(metrics.ascent() + metrics.descent()) + 4);
    int solid = 0;
    for (int y = 0; y < caption.image.height(); ++y)
        for (int x = 0; x < caption.image.width(); ++x)
            solid += caption.image.pixel(x, y) == 0xFFFFFFFF ? 1 : 0;
    EXPECT_GT(solid, 50);
}

} // namespace
} // namespace vantle
