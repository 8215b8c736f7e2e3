// The ways of painting into a frame, against the plain words of what each does.
#include "ceremony/show/CeremonyCanvas.h"

#include "ceremony/show/CeremonyBlend.h"
#include "ceremony/show/CeremonyDotMasks.h"

#include <gtest/gtest.h>

#include <algorithm>

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
    for (std::size_t count = 0; count < 40; ++count) {
        std::vector<std::uint32_t> pixels(count), strengths(count);
        for (std::size_t i = 0; i < count; ++i) {
            pixels[i] = static_cast<std::uint32_t>(i * 0x9E3779B1U);
            strengths[i] = static_cast<std::uint32_t>(i * 37 % 256) * 0x01010101U;
        }
        std::vector<std::uint32_t> each = pixels;
        std::vector<std::uint32_t> even = pixels;
        ceremonyblend::blendSpan(each.data(), strengths.data(), count, 0xFF30D158);
        ceremonyblend::blendSpan(even.data(), count, 0xFF30D158, 77);
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_EQ(each[i], reference(pixels[i], 0xFF30D158, strengths[i] & 0xFF));
            EXPECT_EQ(even[i], reference(pixels[i], 0xFF30D158, 77));
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
