// The ways of painting into a frame, against the plain words of what each does.
#include "ceremony/show/CeremonyCanvas.h"

#include "ceremony/show/CeremonyBlend.h"
#include "ceremony/show/CeremonyDotMasks.h"
#include "fakes/SplitMixRandom.h"

#include <QSizeF>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace vantle {
namespace {

/// One channel by the formula, with nothing done at once.
std::uint32_t channel(std::uint32_t picture, std::uint32_t source, std::uint32_t strength) {
    return std::min(255U, ((256 - strength) * picture >> 8) + ((strength + 1) * source >> 8));
}

std::uint32_t reference(std::uint32_t pixel, std::uint32_t color, std::uint32_t strength) {
    std::uint32_t result = 0;
    for (const int shift : {0, 8, 16})
        result |= channel(pixel >> shift & 0xFF, color >> shift & 0xFF, strength) << shift;
    const std::uint32_t alpha = std::min(255U, strength + ((256 - strength) * (pixel >> 24) >> 8));
    return result | alpha << 24;
}

TEST(CeremonyBlend, IsTheFormulaForEveryStrengthAndChannel) {
    for (std::uint32_t strength = 0; strength < 256; ++strength) {
        for (std::uint32_t value = 0; value < 256; ++value) {
            const std::uint32_t pixel = value * 0x01010101U;
            const std::uint32_t color = 0xFF000000U | (255 - value) << 16 | 0x8000U | value;
            std::uint32_t blended = pixel;
            ceremonyblend::blend(blended, color, strength);
            ASSERT_EQ(blended, reference(pixel, color, strength)) << strength << ' ' << value;
        }
    }
}

TEST(CeremonyBlend, ManyPixelsAtOnceAreTheSameAsOneByOne) {
    for (const auto* loops : {&ceremonyblend::loops(), &ceremonyblend::plainLoops()}) {
        for (std::size_t count = 0; count < 40; ++count) {
            std::vector<std::uint32_t> pixels(count);
            std::vector<std::uint8_t> strengths(count);
            for (std::size_t i = 0; i < count; ++i) {
                pixels[i] = static_cast<std::uint32_t>(i * 0x9E3779B1U);
                strengths[i] = static_cast<std::uint8_t>(i * 37 % 256);
            }
            std::vector<std::uint32_t> each = pixels;
            std::vector<std::uint32_t> even = pixels;
            loops->blendEach(each.data(), strengths.data(), count, 0xFF30D158);
            loops->blendEvenly(even.data(), count, 0xFF30D158, 77);
            for (std::size_t i = 0; i < count; ++i) {
                EXPECT_EQ(each[i], reference(pixels[i], 0xFF30D158, strengths[i]));
                EXPECT_EQ(even[i], reference(pixels[i], 0xFF30D158, 77));
            }
        }
    }
}

TEST(CeremonyBlend, RowsAreStampedPixelByPixel) {
    constexpr std::size_t kStride = 11;
    constexpr std::size_t kRows = 5;
    std::vector<std::uint32_t> weights(kRows * ceremonyblend::kRowPixels);
    for (std::size_t i = 0; i < weights.size(); ++i)
        weights[i] = static_cast<std::uint32_t>(i * 41 % 257);
    std::vector<std::uint16_t> placed(kRows * ceremonyblend::kRowWeights);
    for (std::size_t row = 0; row < kRows; ++row)
        for (std::size_t i = 0; i < ceremonyblend::kRowWeights; ++i)
            placed[row * ceremonyblend::kRowWeights + ceremonyblend::weightIndex(i)] =
                static_cast<std::uint16_t>(weights[row * ceremonyblend::kRowPixels + i / 4]);
    for (const auto* loops : {&ceremonyblend::loops(), &ceremonyblend::plainLoops()}) {
        for (const unsigned strength : {0U, 1U, 2U, 100U, 255U}) {
            std::vector<std::uint32_t> pixels(kStride * kRows);
            for (std::size_t i = 0; i < pixels.size(); ++i)
                pixels[i] = static_cast<std::uint32_t>(i * 0x9E3779B1U);
            const std::vector<std::uint32_t> before = pixels;
            loops->stampRows(pixels.data(), kStride, placed.data(), kRows, 0xFF64D2FF, strength);
            for (std::size_t i = 0; i < pixels.size(); ++i) {
                const std::size_t column = i % kStride;
                std::uint32_t expected = before[i];
                if (column < ceremonyblend::kRowPixels) {
                    const std::uint32_t seen =
                        strength * weights[i / kStride * ceremonyblend::kRowPixels + column] >> 8;
                    if (seen >= 2) expected = reference(expected, 0xFF64D2FF, seen);
                }
                ASSERT_EQ(pixels[i], expected) << strength << ' ' << i;
            }
        }
    }
}

TEST(CeremonyCanvas, HasAThirdOfTheScreensPointsAndNeverManyPixels) {
    const CeremonyCanvas laptop(1440, 900, PixelOrder::Rgba);
    EXPECT_EQ(laptop.width(), 480);
    EXPECT_EQ(laptop.height(), 300);
    EXPECT_EQ(laptop.scale(), 3);
    const CeremonyCanvas wide(6016, 3384, PixelOrder::Rgba);
    EXPECT_LT(wide.pixels().size(), 272000U);
    const CeremonyCanvas tiny(24, 24, PixelOrder::Rgba);
    EXPECT_EQ(tiny.width(), 8);
    EXPECT_EQ(tiny.height(), 8);
}

TEST(CeremonyCanvas, PacksTheBytesInTheOrderOfItsPixels) {
    EXPECT_EQ(CeremonyCanvas(24, 24, PixelOrder::Rgba).packed(0x123456), 0xFF563412U);
    EXPECT_EQ(CeremonyCanvas(24, 24, PixelOrder::Bgra).packed(0x123456), 0xFF123456U);
}

TEST(CeremonyCanvas, APointAtAPixelsCentreIsThatPixelAlone) {
    CeremonyCanvas canvas(300, 300, PixelOrder::Bgra);
    canvas.plot(10.5, 20.5, 0xFFFFFFFF, 1);
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            EXPECT_EQ(canvas.pixels()[static_cast<std::size_t>(y * 100 + x)],
                      x == 10 && y == 20 ? 0xFFFFFFFFU : 0U);
}

TEST(CeremonyCanvas, APointBetweenPixelsIsSpreadOverFour) {
    CeremonyCanvas canvas(300, 300, PixelOrder::Bgra);
    canvas.plot(11, 21, 0xFFFFFFFF, 1);
    for (const std::size_t place : {2010U, 2011U, 2110U, 2111U})
        EXPECT_EQ(canvas.pixels()[place] >> 24, 63U);
}

/// The four pixels of a point, each by itself.
void plotOneByOne(CeremonyCanvas& canvas, double x, double y, std::uint32_t color, double alpha) {
    const double left = std::floor(x - 0.5);
    const double top = std::floor(y - 0.5);
    const double right = x - 0.5 - left;
    const double lower = y - 0.5 - top;
    const int column = static_cast<int>(left);
    const int row = static_cast<int>(top);
    canvas.blendAt(column, row, color, (1 - right) * (1 - lower) * alpha);
    canvas.blendAt(column + 1, row, color, right * (1 - lower) * alpha);
    canvas.blendAt(column, row + 1, color, (1 - right) * lower * alpha);
    canvas.blendAt(column + 1, row + 1, color, right * lower * alpha);
}

bool areEqual(const CeremonyCanvas& one, const CeremonyCanvas& other) {
    return std::ranges::equal(one.pixels(), other.pixels());
}

TEST(CeremonyCanvas, AnyPointIsItsPixelsOneByOne) {
    CeremonyCanvas atOnce(120, 90, PixelOrder::Bgra);
    CeremonyCanvas oneByOne(120, 90, PixelOrder::Bgra);
    fakes::SplitMixRandom random(7);
    for (int i = 0; i < 20000; ++i) {
        const double x = random.below(44) - 2;
        const double y = random.below(34) - 2;
        const double alpha = i % 5 == 0 ? 1 : random.below(1) * random.below(1);
        const auto color = 0xFF000000U | static_cast<std::uint32_t>(random.below(0x1000000));
        atOnce.plot(x, y, color, alpha);
        plotOneByOne(oneByOne, x, y, color, alpha);
    }
    EXPECT_TRUE(areEqual(atOnce, oneByOne));
}

/// A ring with every one of its points, on the canvas or not.
void stampAllPoints(CeremonyCanvas& canvas, double radius, double lineWidth, double alpha) {
    const double r = radius / canvas.scale();
    const int steps = std::max(static_cast<int>(r * 6.283), 24);
    const double step = 6.28318 / steps;
    const double half = std::max(lineWidth / canvas.scale() * 0.5, 0.35);
    double angle = 0;
    for (int i = 0; i < steps; ++i, angle += step) {
        const auto at = [&](double distance, double opacity) {
            plotOneByOne(canvas, canvas.centerX() + std::cos(angle) * distance,
                         canvas.centerY() + std::sin(angle) * distance, 0xFFFF375F, opacity);
        };
        at(r, alpha);
        at(r - 0.8 * half, alpha * 0.5);
        at(r + 0.8 * half, alpha * 0.5);
        at(r - 1.6 * half, alpha * 0.14);
        at(r + 1.6 * half, alpha * 0.14);
    }
}

TEST(CeremonyCanvas, ARingIsAllOfItsPoints) {
    for (const QSizeF screen : {QSizeF(300, 200), QSizeF(200, 301), QSizeF(600, 60)}) {
        for (int i = 0; i < 120; ++i) {
            const double radius = 2 + 3.1 * i; // far beyond the corners at the end
            const double alpha = 0.65 * (1 - i / 125.0);
            CeremonyCanvas quick(screen.width(), screen.height(), PixelOrder::Bgra);
            CeremonyCanvas whole(screen.width(), screen.height(), PixelOrder::Bgra);
            quick.clear(133);
            whole.clear(133);
            quick.stampRing(radius, 3.5 - i / 90.0, 0xFFFF375F, alpha);
            stampAllPoints(whole, radius, 3.5 - i / 90.0, alpha);
            ASSERT_TRUE(areEqual(quick, whole)) << screen.width() << ' ' << radius;
            quick.stampRing(radius, 2, 0xFFFF375F, 0.012); // fainter than its halo can show
            stampAllPoints(whole, radius, 2, 0.012);
            ASSERT_TRUE(areEqual(quick, whole)) << screen.width() << ' ' << radius;
        }
    }
}

TEST(CeremonyCanvas, AGlowIsTheSameWhateverGlowedBefore) {
    struct Glow {
        double radius, alpha;
    };
    CeremonyCanvas used(300, 200, PixelOrder::Bgra);
    for (const Glow& glow : {Glow{90, 0.5}, Glow{40, 0.22}, Glow{90, 0.5}, Glow{90, 0.3},
                             Glow{40, 0.22}, Glow{500, 0.14}, Glow{90, 0.5}}) {
        CeremonyCanvas fresh(300, 200, PixelOrder::Bgra);
        fresh.drawCenteredGlow(glow.radius, 0xFF7A78FF, glow.alpha);
        used.clear(0);
        fresh.clear(0);
        used.drawCenteredGlow(glow.radius, 0xFF7A78FF, glow.alpha);
        fresh.drawCenteredGlow(glow.radius, 0xFF7A78FF, glow.alpha);
        CeremonyCanvas first(300, 200, PixelOrder::Bgra);
        first.clear(0);
        first.drawCenteredGlow(glow.radius, 0xFF7A78FF, glow.alpha);
        EXPECT_TRUE(areEqual(used, first)) << glow.radius << ' ' << glow.alpha;
        EXPECT_TRUE(areEqual(fresh, first)) << glow.radius << ' ' << glow.alpha;
    }
}

TEST(CeremonyCanvas, WhatLiesOutsideIsLeftOut) {
    CeremonyCanvas canvas(24, 24, PixelOrder::Bgra);
    for (const double far : {-1e9, -1.5, -0.6, 8.6, 1e9}) {
        canvas.plot(far, 4, 0xFFFFFFFF, 1);
        canvas.plot(4, far, 0xFFFFFFFF, 1);
    }
    canvas.blendAt(-1, 0, 0xFFFFFFFF, 1);
    canvas.blendAt(0, 8, 0xFFFFFFFF, 1);
    canvas.blendRow(8, 0xFFFFFFFF, 1);
    canvas.blendColumn(-1, 0xFFFFFFFF, 1);
    EXPECT_TRUE(std::ranges::all_of(canvas.pixels(), [](auto pixel) { return pixel == 0; }));
}

TEST(CeremonyCanvas, WhatIsTooFaintIsNotPainted) {
    CeremonyCanvas canvas(24, 24, PixelOrder::Bgra);
    canvas.blendAt(4, 4, 0xFFFFFFFF, 1.9 / 255);
    EXPECT_EQ(canvas.pixels()[36], 0U);
    canvas.blendAt(4, 4, 0xFFFFFFFF, 2.1 / 255);
    EXPECT_EQ(canvas.pixels()[36] >> 24, 2U);
}

TEST(CeremonyCanvas, TheFaintestFlashIsPaintedAndNoneIsNot) {
    CeremonyCanvas canvas(300, 300, PixelOrder::Bgra);
    canvas.blendAll(0xFFFFFFFF, 0);
    EXPECT_TRUE(std::ranges::all_of(canvas.pixels(), [](auto pixel) { return pixel == 0; }));
    canvas.blendAll(0xFFFFFFFF, 1);
    EXPECT_TRUE(
        std::ranges::all_of(canvas.pixels(), [](auto pixel) { return pixel == 0x01010101; }));
}

TEST(CeremonyCanvas, TheGlowFadesFromTheCentreToItsRadius) {
    CeremonyCanvas canvas(300, 300, PixelOrder::Bgra);
    canvas.drawCenteredGlow(90, 0xFF7A78FF, 0.5);
    const auto alpha = [&](std::size_t x) { return canvas.pixels()[50 * 100 + x] >> 24; };
    EXPECT_NEAR(alpha(50), 0.5 * 255, 4);
    EXPECT_NEAR(alpha(65), 0.25 * 255, 4);
    EXPECT_EQ(alpha(81), 0U);
}

TEST(CeremonyDotMask, IsTheSameOnEverySide) {
    const CeremonyDotMasks masks(4);
    EXPECT_EQ(masks.side, 9);
    const auto& coverage = masks.flash.coverage();
    ASSERT_EQ(coverage.size(), 81U);
    for (std::size_t y = 0; y < 9; ++y)
        for (std::size_t x = 0; x < 9; ++x) {
            EXPECT_EQ(coverage[y * 9 + x], coverage[x * 9 + y]);
            EXPECT_EQ(coverage[y * 9 + x], coverage[y * 9 + 8 - x]);
        }
    EXPECT_EQ(coverage[40], 255);
    EXPECT_EQ(coverage[0], 0);
}

TEST(CeremonyDotMask, AnySideIsOddAndFrom5To9) {
    EXPECT_EQ(CeremonyDotMasks::sideFor(0.1), 5);
    EXPECT_EQ(CeremonyDotMasks::sideFor(3), 7);
    EXPECT_EQ(CeremonyDotMasks::sideFor(4), 9);
    EXPECT_EQ(CeremonyDotMasks::sideFor(40), 9);
}

TEST(CeremonyDotMask, AStampIsTheMaskPixelByPixel) {
    for (const double pitch : {2.0, 3.0, 4.0, 4.7, 9.0}) { // in rows of eight, or too wide for them
        const CeremonyDotMasks masks(pitch);
        for (const CeremonyDotMask* mask :
             {&masks.back, &masks.small, &masks.bigOver, &masks.flash}) {
            for (const int strength : {1, 2, 60, 255}) {
                CeremonyCanvas canvas(120, 120, PixelOrder::Bgra);
                canvas.clear(100);
                mask->stamp(canvas, 12, 7, 0xFFFF9F0A, strength);
                for (int y = 0; y < 40; ++y)
                    for (int x = 0; x < 40; ++x) {
                        const int column = x - 12;
                        const int row = y - 7;
                        std::uint32_t expected = 100U << 24;
                        if (column >= 0 && row >= 0 && column < masks.side && row < masks.side) {
                            const std::uint32_t m = mask->coverage()[static_cast<std::size_t>(
                                row * masks.side + column)];
                            const std::uint32_t a =
                                static_cast<std::uint32_t>(strength) * (m + 1) >> 8;
                            if (m > 2 && a >= 2) expected = reference(expected, 0xFFFF9F0A, a);
                        }
                        ASSERT_EQ(canvas.pixels()[static_cast<std::size_t>(y * 40 + x)], expected);
                    }
            }
        }
    }
}

TEST(CeremonyDotMask, AStampAcrossTheEdgeIsThePartInside) {
    const CeremonyDotMasks masks(4);
    CeremonyCanvas whole(60, 60, PixelOrder::Bgra);
    masks.flash.stamp(whole, 5, 5, 0xFFFFFFFF, 255);
    CeremonyCanvas cut(24, 24, PixelOrder::Bgra);
    masks.flash.stamp(cut, -4, -2, 0xFFFFFFFF, 255);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x) {
            const bool covered = x + 4 < 9 && y + 2 < 9;
            EXPECT_EQ(cut.pixels()[static_cast<std::size_t>(y * 8 + x)],
                      covered ? whole.pixels()[static_cast<std::size_t>((y + 7) * 20 + x + 9)]
                              : 0U);
        }
}

} // namespace
} // namespace vantle
