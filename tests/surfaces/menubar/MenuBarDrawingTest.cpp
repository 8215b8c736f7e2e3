#include "surfaces/menubar/MenuBarDrawing.h"

#include <QColor>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantle::menubar {
namespace {

constexpr std::uint32_t kBuild = 0x7A78FF;
constexpr int kScale = 20; // pixels a unit, for figures that don't hang on the rounding of edges
constexpr int kLarge = 18 * kScale;

/// The pixel at a place in units, counted from the bottom left as the design does.
QColor at(const QImage& image, double x, double y) {
    const double scale = image.width() / 18.0;
    return image.pixelColor(static_cast<int>(std::floor(x * scale)),
                            static_cast<int>(std::floor((18.0 - y) * scale)));
}

double alphaAt(const QImage& image, double x, double y) { return at(image, x, y).alphaF(); }

/// The sum of all alphas, in square units.
double inkOf(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += image.pixelColor(x, y).alphaF();
    const double scale = image.width() / 18.0;
    return sum / (scale * scale);
}

double roundedArea(double width, double height, double radius) {
    return width * height - (4.0 - std::numbers::pi) * radius * radius;
}

/// The alpha of one layer over another.
double over(double top, double bottom) { return top + bottom * (1.0 - top); }

TEST(MenuBarDrawing, HasTheSizeAskedFor) {
    for (const int pixels : {16, 18, 22, 24, 32, 36, 48, 54}) {
        EXPECT_EQ(drawBrick(pixels).size(), QSize(pixels, pixels));
        EXPECT_EQ(drawStatusDot(pixels, kBuild, 0, false).size(), QSize(pixels, pixels));
    }
}

// The wall

TEST(MenuBarDrawing, LaysEachBrickWhereItBelongs) {
    const QImage wall = drawBrick(kLarge);
    const double rows[] = {1.5 + 1.6, 5.9 + 1.6, 10.3 + 1.6};
    for (const double x : {1.7, 7.7, 9.3, 16.3})
        EXPECT_EQ(alphaAt(wall, x, rows[0]), 1) << x;
    for (const double x : {1.7, 5.7, 7.3, 13.3, 14.9, 16.3})
        EXPECT_EQ(alphaAt(wall, x, rows[1]), 1) << x;
    for (const double x : {1.7, 7.7})
        EXPECT_EQ(alphaAt(wall, x, rows[2]), 1) << x;
}

TEST(MenuBarDrawing, LeavesTheJointsOpen) {
    const QImage wall = drawBrick(kLarge);
    for (const double x : {1.3, 8.1, 8.9, 16.7})
        EXPECT_EQ(alphaAt(wall, x, 3.1), 0) << x;
    for (const double x : {6.1, 6.9, 13.7, 14.5})
        EXPECT_EQ(alphaAt(wall, x, 7.5), 0) << x;
    for (const double y : {1.3, 4.9, 5.7, 9.3, 10.1, 13.7})
        EXPECT_EQ(alphaAt(wall, 4.0, y), 0) << y;
}

TEST(MenuBarDrawing, LaysTheLastBrickTurnedWithItsRightEndUp) {
    const QImage wall = drawBrick(kLarge);
    const double turn = 26.0 * std::numbers::pi / 180.0;
    const auto along = [&](double forward, double up) {
        return alphaAt(wall, 12.6 + forward * std::cos(turn) - up * std::sin(turn),
                       13.6 + forward * std::sin(turn) + up * std::cos(turn));
    };
    EXPECT_EQ(along(0, 0), 1);
    for (const double end : {-2.7, 2.7})
        EXPECT_EQ(along(end, 0), 1);
    for (const double end : {-3.1, 3.1})
        EXPECT_EQ(along(end, 0), 0);
    for (const double side : {-1.5, 1.5})
        EXPECT_EQ(along(0, side), 1);
    for (const double side : {-1.7, 1.7})
        EXPECT_EQ(along(0, side), 0);
    // The right end up, not down.
    EXPECT_EQ(alphaAt(wall, 12.6 + 2.5 * std::cos(turn), 13.6 - 2.5 * std::sin(turn)), 0);
}

TEST(MenuBarDrawing, DrawsTheWallInBlackAloneWithRoundCorners) {
    const QImage wall = drawBrick(kLarge);
    double expected = 0;
    for (const double width : {6.4, 7.4, 4.4, 6.4, 6.4, 5.8})
        expected += roundedArea(width, 3.2, 1.0);
    expected += roundedArea(1.8, 3.2, 0.8);
    EXPECT_NEAR(inkOf(wall), expected, 0.05);
    EXPECT_EQ(at(wall, 4.0, 3.1).rgb(), QColor(Qt::black).rgb());
    EXPECT_EQ(alphaAt(wall, 1.55, 1.55), 0);
}

// The dot

struct Breath {
    int phase;
    double fullness;
};

class BreathTest : public testing::TestWithParam<Breath> {};

TEST_P(BreathTest, HasTheRadiiAndAlphasOfItsFullness) {
    const auto [phase, fullness] = GetParam();
    const QImage dot = drawStatusDot(kLarge, kBuild, phase, false);
    const double coreRadius = 3.4 + 1.1 * fullness;
    const double coreAlpha = 0.62 + 0.38 * fullness;
    const double haloRadius = coreRadius + 3.4;
    const double haloAlpha = 0.1 + 0.16 * fullness;
    const double inner = over(coreAlpha, haloAlpha);
    for (const double direction : {-1.0, 1.0}) {
        EXPECT_NEAR(alphaAt(dot, 9 + direction * (coreRadius - 0.2), 9), inner, 0.01);
        EXPECT_NEAR(alphaAt(dot, 9 + direction * (coreRadius + 0.2), 9), haloAlpha, 0.01);
        EXPECT_NEAR(alphaAt(dot, 9, 9 + direction * (haloRadius - 0.2)), haloAlpha, 0.01);
        EXPECT_EQ(alphaAt(dot, 9, 9 + direction * (haloRadius + 0.2)), 0);
    }
    const double coreArea = std::numbers::pi * coreRadius * coreRadius;
    const double haloArea = std::numbers::pi * haloRadius * haloRadius;
    // Eight bits of alpha make up to half a percent.
    EXPECT_NEAR(inkOf(dot), haloAlpha * (haloArea - coreArea) + inner * coreArea, 0.005 * haloArea);
}

// sin(45 degrees) / 2 + 1 / 2 and its mirror.
constexpr double kHigh = 0.85355339059327;
constexpr double kLow = 0.14644660940673;
INSTANTIATE_TEST_SUITE_P(AllPhases, BreathTest,
                         testing::Values(Breath{0, 0.5}, Breath{1, kHigh}, Breath{2, 1.0},
                                         Breath{3, kHigh}, Breath{4, 0.5}, Breath{5, kLow},
                                         Breath{6, 0.0}, Breath{7, kLow}));

TEST(MenuBarDrawing, ShowsTheFullestDotInThePureColour) {
    const QImage dot = drawStatusDot(kLarge, kBuild, 2, false);
    EXPECT_EQ(at(dot, 9, 9), QColor(0x7A, 0x78, 0xFF));
}

TEST(MenuBarDrawing, LooksAtTheColourBitsOnly) {
    EXPECT_EQ(drawStatusDot(36, 0xFF000000 | kBuild, 2, false),
              drawStatusDot(36, kBuild, 2, false));
}

TEST(MenuBarDrawing, PutsTwoWhiteBarsOnAPausedDot) {
    const QImage dot = drawStatusDot(kLarge, kBuild, 0, true);
    const double ground = over(0.45, 0.12);
    for (const double x : {7.5, 8.5, 9.5, 10.5})
        for (const double y : {6.9, 9.0, 11.1}) {
            EXPECT_NEAR(alphaAt(dot, x, y), over(0.9, ground), 0.01) << x << ' ' << y;
            EXPECT_GT(at(dot, x, y).red(), 240) << x << ' ' << y;
        }
    for (const double x : {7.3, 9.0, 10.7})
        EXPECT_NEAR(alphaAt(dot, x, 9), ground, 0.01) << x;
    for (const double y : {6.7, 11.3})
        EXPECT_NEAR(alphaAt(dot, 8.0, y), ground, 0.01) << y;
}

TEST(MenuBarDrawing, OnALightBarTheHaloIsTwiceAsStrong) {
    for (const bool paused : {false, true}) {
        const QImage dark = drawStatusDot(kLarge, kBuild, 2, paused);
        const QImage light = drawStatusDot(kLarge, kBuild, 2, paused, true);
        EXPECT_NEAR(alphaAt(light, 9 - 5.5, 9), 2 * alphaAt(dark, 9 - 5.5, 9), 0.01);
    }
}

TEST(MenuBarDrawing, OnALightBarThePauseIsDark) {
    for (const int pixels : {16, 18, 22, 24, kLarge}) {
        QImage bar(pixels, pixels, QImage::Format_RGB32);
        bar.fill(QColor(0xE8, 0xE9, 0xED));
        QPainter(&bar).drawImage(0, 0, drawStatusDot(pixels, kBuild, 0, true, true));
        const int middle = pixels / 2;
        int darkest = 255;
        for (int x = 0; x < pixels; ++x)
            darkest = std::min(darkest, qGray(bar.pixel(x, middle)));
        const int beside = qGray(bar.pixel(static_cast<int>(pixels * (9 - 5.5) / 18), middle));
        EXPECT_LT(darkest, 90) << pixels;
        EXPECT_GT(beside, 180) << pixels;
    }
}

TEST(MenuBarDrawing, DrawsAPausedDotFaintAndWithoutBreath) {
    const QImage dot = drawStatusDot(kLarge, kBuild, 0, true);
    EXPECT_NEAR(alphaAt(dot, 9 - 3.2, 9), over(0.45, 0.12), 0.01);
    EXPECT_NEAR(alphaAt(dot, 9 - 3.6, 9), 0.12, 0.01);
    EXPECT_NEAR(alphaAt(dot, 9 - 6.6, 9), 0.12, 0.01);
    EXPECT_EQ(alphaAt(dot, 9 - 7.0, 9), 0);
    for (int phase = 1; phase < kPhases; ++phase)
        EXPECT_EQ(drawStatusDot(kLarge, kBuild, phase, true), dot);
}

TEST(MenuBarDrawing, KeepsThePauseBarsApartAtEverySize) {
    for (const int pixels : {16, 17, 18, 22, 24, 32, 36, 48, 54}) {
        const QImage dot = drawStatusDot(pixels, kBuild, 0, true);
        // Blue is full in the dot already; red tells the white bars from it.
        const int middle = dot.pixelColor(pixels / 2, pixels / 2).red();
        int brightest = 0;
        for (int x = 0; x < pixels; ++x)
            brightest = std::max(brightest, dot.pixelColor(x, pixels / 2).red());
        EXPECT_GT(brightest - middle, 30) << pixels;
        // The two are each other's mirror.
        const QImage mirrored = dot.mirrored(true, false);
        for (int x = 0; x < pixels; ++x)
            EXPECT_NEAR(dot.pixelColor(x, pixels / 2).alpha(),
                        mirrored.pixelColor(x, pixels / 2).alpha(), 3)
                << pixels << ' ' << x;
    }
}

TEST(MenuBarDrawing, StaysInsideItsSquareAtEverySize) {
    for (const int pixels : {16, 18, 22}) {
        const QImage dot = drawStatusDot(pixels, kBuild, 2, false);
        for (int i = 0; i < pixels; ++i) {
            EXPECT_EQ(dot.pixelColor(i, 0).alpha(), 0) << pixels;
            EXPECT_EQ(dot.pixelColor(0, i).alpha(), 0) << pixels;
        }
    }
}

TEST(MenuBarDrawing, PlateShowsOnBrightAndOnDarkBarsAndLeavesTheImageReadable) {
    for (const int pixels : {16, 22, 36}) {
        const QImage brick = drawBrick(pixels);
        const QImage open = onPlate(brick);
        ASSERT_EQ(open.size(), brick.size());
        for (const QRgb bar : {qRgb(0x20, 0x20, 0x20), qRgb(0xF0, 0xF0, 0xF0)}) {
            QImage shown(pixels, pixels, QImage::Format_RGB32);
            shown.fill(bar);
            QPainter(&shown).drawImage(0, 0, open);
            const int edge = qGray(shown.pixel(pixels / 2, 0));
            EXPECT_GT(std::abs(edge - qGray(bar)), 25) << "the plate shows";
            EXPECT_EQ(shown.pixel(0, 0), bar) << "with round corners";
        }
        EXPECT_EQ(qAlpha(open.pixel(pixels / 4, pixels * 15 / 18)), 255) << "a brick of the wall";
    }
}

} // namespace
} // namespace vantle::menubar
