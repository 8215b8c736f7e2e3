#include "review/drawing/RhythmPainter.h"

#include "review/drawing/Drawn.h"

#include <gtest/gtest.h>

namespace vantle::rhythmpainter {
namespace {

constexpr double kColumn = 368;
const QColor kGround(0x0A, 0x0A, 0x0F);

RhythmPicture week() {
    RhythmPicture picture;
    picture.letters = QStringList(7, QStringLiteral("M"));
    picture.weeks.resize(1);
    for (DayTile& tile : picture.weeks.front()) {
        tile.isDay = tile.hasFill = true;
        tile.fill = Qt::red;
    }
    return picture;
}

QImage imageOf(const RhythmPicture& picture, std::optional<double> growing = std::nullopt) {
    const RhythmLayout layout = RhythmLayout::of(picture, kColumn);
    return drawn::image(layout.size, 1, [&](QPainter& painter) {
        draw(painter, layout, {QFont(), Qt::green, Qt::blue}, growing);
    });
}

QColor middle(const QImage& image, int index) { return image.pixelColor(22 + 54 * index, 47); }

/// The hues of what is drawn where the letter of a tile stands.
QColor brightest(const QImage& image, int index) {
    QColor found = kGround;
    for (int y = 0; y < 15; ++y)
        for (int x = 54 * index; x < 54 * index + 44; ++x)
            if (image.pixelColor(x, y).value() > found.value()) found = image.pixelColor(x, y);
    return found;
}

TEST(RhythmPainter, LettersOfDaysToComeAreFainter) {
    RhythmPicture picture = week();
    picture.weeks.front()[6].isFuture = true;
    const QImage image = imageOf(picture);
    EXPECT_GT(brightest(image, 5).green(), 100);
    EXPECT_LT(brightest(image, 6).green(), 100);
    EXPECT_GT(brightest(image, 6).blue(), 100);
}

TEST(RhythmPainter, ALetterStandsOverTheMiddleOfItsTile) {
    const QImage image = imageOf(week());
    int left = 44;
    int right = 0;
    for (int y = 0; y < 15; ++y)
        for (int x = 0; x < 44; ++x)
            if (image.pixelColor(x, y).green() > 60) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
    EXPECT_LE(std::abs(left - (43 - right)), 2);
}

TEST(RhythmPainter, TheTilesOfAWeekGrowOneAfterTheOther) {
    EXPECT_EQ(middle(imageOf(week(), 0.19), 0), kGround) << "none is there at first";
    const QImage early = imageOf(week(), 0.35);
    EXPECT_GT(middle(early, 0).red(), middle(early, 2).red());
    EXPECT_GT(middle(early, 2).red(), middle(early, 3).red());
    EXPECT_EQ(middle(early, 3), kGround) << "its turn is next";
    EXPECT_EQ(early.pixelColor(2, 47), kGround) << "small as yet";
    EXPECT_EQ(imageOf(week(), growSeconds()), imageOf(week()));
}

TEST(RhythmPainter, ATileGrowsInSixTenthsOfASecond) {
    EXPECT_DOUBLE_EQ(growSeconds(), 0.2 + 6 * 0.05 + 0.6);
    EXPECT_EQ(grown(2, 0.3), 0);
    EXPECT_GT(grown(2, 0.31), 0);
    EXPECT_LT(grown(2, 0.89), 1);
    EXPECT_DOUBLE_EQ(grown(2, 0.9), 1);
    EXPECT_DOUBLE_EQ(grown(2, 70), 1);
}

} // namespace
} // namespace vantle::rhythmpainter
