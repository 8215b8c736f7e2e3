#include "review/drawing/RhythmTilePainter.h"

#include "review/drawing/Drawn.h"

#include <gtest/gtest.h>

namespace vantle::rhythmtile {
namespace {

constexpr double kSide = 60;
constexpr QPointF kCorner(8, 8);
constexpr TileShape kDay{{44, 44}, 11};
constexpr TileShape kSmall{{10.5, 10.5}, 2.8, true};
const QColor kGround(0x0A, 0x0A, 0x0F);

DayTile worked(const QColor& color) {
    DayTile tile;
    tile.isDay = true;
    tile.hasFill = true;
    tile.fill = color;
    return tile;
}

DayTile future() {
    DayTile tile = worked(QColor::fromRgbF(1, 1, 1, 0.02F));
    tile.isFuture = true;
    tile.outline = QColor::fromRgbF(1, 1, 1, 0.05F);
    tile.outlineWidth = 1;
    return tile;
}

DayTile today(DayTile tile) {
    tile.isToday = true;
    tile.outline = QColor::fromRgbF(1, 1, 1, 0.38F);
    tile.outlineWidth = 1.5;
    return tile;
}

QImage imageOf(const DayTile& tile, const TileShape& shape = kDay, double scale = 2,
               QPointF corner = kCorner) {
    return drawn::image({kSide, kSide}, scale,
                        [&](QPainter& painter) { draw(painter, corner, shape, tile); });
}

/// Along the middle of the tile, in px from the left.
QColor across(const QImage& image, double x, double scale = 2) {
    return image.pixelColor(static_cast<int>(x * scale), static_cast<int>(30 * scale));
}

int litIn(const QImage& image) {
    int lit = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            lit += image.pixelColor(x, y) == kGround ? 0 : 1;
    return lit;
}

TEST(RhythmTilePainter, ADayOfWorkHasItsColourAndALightEdge) {
    const QImage image = imageOf(worked(QColor(0x7A, 0x78, 0xFF)));
    EXPECT_EQ(across(image, 30), QColor(0x7A, 0x78, 0xFF));
    EXPECT_LE(drawn::distance(across(image, 8.2), QColor(0x8F, 0x8D, 0xFF)), 1);
    EXPECT_EQ(across(image, 9.2), QColor(0x7A, 0x78, 0xFF)) << "a fine one";
    EXPECT_EQ(across(image, 7.7), kGround);
    EXPECT_EQ(image.pixelColor(17, 17), kGround) << "round corners";
}

TEST(RhythmTilePainter, LessTimeIsDarker) {
    QColor faint(0x7A, 0x78, 0xFF);
    faint.setAlphaF(0.35F);
    EXPECT_LE(drawn::distance(across(imageOf(worked(faint)), 30), QColor(0x31, 0x30, 0x62)), 2);
}

TEST(RhythmTilePainter, ADayWithoutWorkIsAFaintTileAndABlankIsNothing) {
    DayTile empty;
    empty.isDay = true;
    const QImage image = imageOf(empty);
    EXPECT_LE(drawn::distance(across(image, 30), QColor(0x16, 0x16, 0x1B)), 1);
    EXPECT_EQ(across(image, 8.2), across(image, 30)) << "without an edge";
    EXPECT_EQ(litIn(imageOf(DayTile())), 0);
}

TEST(RhythmTilePainter, ADayToComeIsABarelyVisibleOutline) {
    const QImage image = imageOf(future());
    EXPECT_LE(drawn::distance(across(image, 30), QColor(0x0E, 0x0E, 0x13)), 1);
    EXPECT_LE(drawn::distance(across(image, 8.2), QColor(0x1A, 0x1A, 0x1F)), 2);
}

TEST(RhythmTilePainter, TodayHasARingAroundItAtADistance) {
    const QColor grey(0x67, 0x67, 0x6A);
    const QImage image = imageOf(today(worked(Qt::red)));
    EXPECT_LE(drawn::distance(across(image, 5.2), grey), 1);
    EXPECT_LE(drawn::distance(across(image, 6.2), grey), 1) << "one and a half px wide";
    EXPECT_EQ(across(image, 4.7), kGround);
    EXPECT_EQ(across(image, 6.7), kGround) << "the distance";
    EXPECT_EQ(across(image, 30), QColor(Qt::red));

    DayTile idle;
    idle.isDay = true;
    EXPECT_LE(drawn::distance(across(imageOf(today(idle)), 5.2), grey), 1) << "without work, too";
}

TEST(RhythmTilePainter, OnASmallTileTheRingIsBrightAndAPixelAwayAndNoEdgeIsDrawn) {
    const QImage image = imageOf(today(worked(Qt::red)), kSmall, 2, {20, 25});
    const QColor bright(0xB5, 0xB5, 0xB7); // white at 70 %
    EXPECT_EQ(across(image, 20.2), QColor(Qt::red));
    EXPECT_EQ(across(image, 19.7), kGround);
    EXPECT_EQ(across(image, 19.2), kGround) << "the distance";
    EXPECT_LE(drawn::distance(across(image, 18.7), bright), 2);
    EXPECT_LE(drawn::distance(across(image, 17.2), bright), 2) << "two px wide";
    EXPECT_EQ(across(image, 16.7), kGround);
}

TEST(RhythmTilePainter, NothingReachesBeyondWhatIsSaid) {
    const QImage image = imageOf(today(worked(Qt::red)));
    constexpr double kFrom = 8 - reach;
    int outside = 0;
    for (double x = 0; x < kSide; x += 0.5)
        for (double y = 0; y < kSide; y += 0.5)
            if (std::min(x, y) < kFrom || std::max(x, y) >= kSide - kFrom)
                outside +=
                    image.pixelColor(static_cast<int>(2 * x), static_cast<int>(2 * y)) == kGround
                        ? 0
                        : 1;
    EXPECT_EQ(outside, 0);
}

TEST(RhythmTilePainter, TilesAreSharpAtAnyScaleAndPlace) {
    // A row through the middle has the ground, the edge and the fill, and nothing in between.
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0})
        for (const double x : {8.0, 8.3, 8.6}) {
            const QImage image = imageOf(worked(Qt::red), kDay, scale, {x, 8});
            std::vector<QRgb> colors;
            for (int i = 0; i < image.width(); ++i) {
                const QRgb color = image.pixel(i, static_cast<int>(30 * scale));
                if (colors.empty() || colors.back() != color) colors.push_back(color);
            }
            EXPECT_EQ(colors.size(), 5U) << scale << " at " << x;
        }
}

TEST(RhythmTilePainter, InAPictureThatIsMadeSmallerTilesKeepTheirDistance) {
    // Half of it is on either side of a pixel's edge, and stays there.
    const QImage image = imageOf(worked(Qt::red), kDay, 0.5, {9, 8});
    EXPECT_EQ(image.pixelColor(3, 15), kGround);
    EXPECT_GT(image.pixelColor(4, 15).red(), 100);
    EXPECT_LT(image.pixelColor(4, 15).red(), 200);
    EXPECT_EQ(image.pixelColor(10, 15), QColor(Qt::red));
}

} // namespace
} // namespace vantle::rhythmtile
