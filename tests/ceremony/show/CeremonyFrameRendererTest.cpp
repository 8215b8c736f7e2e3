// What stands in a frame at a given moment.
#include "ceremony/show/CeremonyFrameRenderer.h"

#include "ceremony/show/CeremonyPaletteRGB.h"
#include "ceremony/show/SampleShows.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::emptyModel;
using tests::isUniform;
using tests::pixel;
using tests::Rgba;

// One dot, in the middle of a screen where no overlay comes.
constexpr int kDotX = 50; // pixels
constexpr int kDotY = 42;

CeremonyGridModel oneDot(float born, float vanish, std::uint8_t flicker = 0,
                         std::uint8_t bright = 1) {
    CeremonyGridModel model = emptyModel(CeremonyVariant::Scan);
    model.fieldIndex = {10 * model.cols + 12};
    model.fieldBorn = {born};
    model.fieldVanish = {vanish};
    model.fieldColor = {3};
    model.fieldBright = {bright};
    model.fieldPhase = {0};
    model.fieldFlicker = {flicker};
    return model;
}

Rgba dotAt(const CeremonyGridModel& model, double t) {
    CeremonyFrameRenderer renderer(model);
    renderer.fillField(t);
    return pixel(renderer, kDotX, kDotY);
}

Rgba flash() {
    const std::uint32_t rgb = CeremonyDots::flashColor(ceremonypalette::field[3]);
    return {static_cast<int>(rgb >> 16), static_cast<int>(rgb >> 8 & 0xFF),
            static_cast<int>(rgb & 0xFF), 255};
}

TEST(CeremonyFrame, AtItsVeryStartOnlyTheChargersRainAndArmsAreSeen) {
    for (const CeremonyVariant variant : ceremonyvariant::all) {
        CeremonyFrameRenderer renderer = tests::sampleShow(variant, {600, 400});
        renderer.fillField(0);
        const bool empty = variant == CeremonyVariant::Scan || variant == CeremonyVariant::Wall;
        EXPECT_EQ(isUniform(renderer), empty) << static_cast<int>(variant);
        EXPECT_EQ(pixel(renderer, 2, renderer.bufferHeight() - 1), Rgba());
    }
}

TEST(CeremonyFrame, AChargerStartsAtAQuarterOfItsBrightness) {
    CeremonyGridModel model = emptyModel(CeremonyVariant::Nova);
    model.chargerX = {31.5F};
    model.chargerY = {61.5F};
    model.chargerColor = {0};
    CeremonyFrameRenderer renderer(model);
    renderer.fillField(0);
    // Its head, and the two places of its trail, are all still where it starts.
    EXPECT_NEAR(pixel(renderer, 10, 20).alpha, 255 * (1 - 0.75 * 0.925 * 0.97), 4);
}

TEST(CeremonyFrame, ADotIsSeenFromTheMomentOfItsBirthAndFlashesInALighterColor) {
    const CeremonyGridModel model = oneDot(1.625F, 2.9F, 0, 0);
    EXPECT_EQ(dotAt(model, 1.62).green, 0);
    EXPECT_EQ(dotAt(model, 1.625), flash());
    EXPECT_EQ(dotAt(model, 1.75), flash());
    EXPECT_NE(dotAt(model, 1.76), flash());
}

TEST(CeremonyFrame, ADotIsStillAliveAtTheMomentOfItsEnd) {
    // With no strobe to show: half a cycle later it is dark.
    const CeremonyGridModel model = oneDot(1.0F, 1.75F, 0);
    EXPECT_GT(dotAt(model, 1.75).green, 60);
    EXPECT_EQ(dotAt(model, 1.7501).green, 0);
}

TEST(CeremonyFrame, ADyingDotFlickersByItsParity) {
    for (int halfCycle = 0; halfCycle < 5; ++halfCycle) {
        const double t = 1.75 + (halfCycle + 0.5) / 25;
        const bool even = halfCycle % 2 == 0;
        EXPECT_EQ(dotAt(oneDot(1.0F, 1.75F, 1), t).green > 0, even) << halfCycle;
        EXPECT_EQ(dotAt(oneDot(1.0F, 1.75F, 0), t).green > 0, !even) << halfCycle;
    }
    EXPECT_EQ(dotAt(oneDot(1.0F, 1.75F, 1), 1.75 + 0.2201).green, 0);
}

TEST(CeremonyFrame, ALargeDotIsBrighterAndWiderThanASmallOne) {
    CeremonyFrameRenderer large(oneDot(0.1F, 2.9F, 0, 1));
    CeremonyFrameRenderer small(oneDot(0.1F, 2.9F, 0, 0));
    large.fillField(1.7);
    small.fillField(1.7);
    EXPECT_GT(pixel(large, kDotX, kDotY).green, pixel(small, kDotX, kDotY).green);
    EXPECT_GT(pixel(large, kDotX + 2, kDotY).green, 0);
    EXPECT_EQ(pixel(small, kDotX + 2, kDotY).green, 0);
}

TEST(CeremonyFrame, ADotBehindIsFaintAndFadesFor0Point3) {
    CeremonyGridModel model = emptyModel(CeremonyVariant::Scan);
    model.backIndex = {10 * model.cols + 12};
    model.backBorn = {1.625F};
    model.backVanish = {2.65F};
    model.backColor = {3};
    model.backPhase = {0};
    EXPECT_EQ(dotAt(model, 1.62).green, 0);
    EXPECT_GT(dotAt(model, 1.84).green, 5);
    EXPECT_LT(dotAt(model, 1.84).green, 0.17 * 255);
    EXPECT_GT(dotAt(model, 2.7).green, 5);
    EXPECT_EQ(dotAt(model, 2.951).green, 0);
}

TEST(CeremonyFrame, OnTheSmallestScreenASpriteLargerThanTheBufferIsCut) {
    CeremonyFrameRenderer renderer = tests::sampleShow(CeremonyVariant::Wall, {24, 24});
    EXPECT_EQ(renderer.bufferWidth(), 8);
    EXPECT_EQ(renderer.bufferHeight(), 8);
    EXPECT_EQ(renderer.dots().masks().side, 9);
    for (const CeremonyDots::Place& place : renderer.dots().frontPlaces())
        EXPECT_TRUE(place.x == 0 && place.y == 0);
    renderer.fillField(1.5);
    EXPECT_FALSE(isUniform(renderer));
}

TEST(CeremonyFrame, AStreakOfRainThatHasJustWrappedIsUnderWayAtTheTop) {
    CeremonyFrameRenderer renderer(emptyModel(CeremonyVariant::Rain, {300, 600}));
    // The head of the first streak is 3.3 points below the top, most of its 70 above the screen.
    renderer.fillField(0.01);
    const double ramp = (0.5 + (70 - 3.3) / 3) / (70.0 / 3);
    EXPECT_NEAR(pixel(renderer, 0, 0).alpha, 255 * 0.4 * 0.5 * ramp,
                2); // half of it left of column 0
    EXPECT_EQ(pixel(renderer, 0, 3).alpha, 0);
    renderer.fillField(1.69);
    EXPECT_FALSE(isUniform(renderer));
    renderer.fillField(1.7);
    EXPECT_TRUE(isUniform(renderer));
}

TEST(CeremonyFrame, TheLineOfTheScanIsThereOnlyWhileItSweeps) {
    CeremonyFrameRenderer renderer(emptyModel(CeremonyVariant::Scan));
    for (const double t : {0.2, 0.9, 1.54, 1.9, 2.61}) {
        renderer.fillField(t);
        EXPECT_FALSE(isUniform(renderer)) << t;
    }
    for (const double t : {0.1, 1.56, 1.7, 1.84, 2.63, 2.79}) {
        renderer.fillField(t);
        EXPECT_TRUE(isUniform(renderer)) << t;
    }
    renderer.fillField(0.85); // half way: column 49 and 50 of 100
    EXPECT_GT(pixel(renderer, 50, 10).red, 90);
    EXPECT_EQ(pixel(renderer, 60, 10).red, 0);
    EXPECT_GT(pixel(renderer, 44, 10).blue, pixel(renderer, 41, 10).blue);
}

TEST(CeremonyFrame, TheBandOfTheWallTrailsBelowItsLine) {
    CeremonyFrameRenderer renderer(emptyModel(CeremonyVariant::Wall));
    renderer.fillField(0.85); // half way: row 39 and 40 of 80
    EXPECT_GT(pixel(renderer, 10, 40).red, 100);
    EXPECT_EQ(pixel(renderer, 10, 30).red, 0);
    EXPECT_GT(pixel(renderer, 10, 44).red, 10);
    EXPECT_EQ(pixel(renderer, 10, 52).red, 0);
}

TEST(CeremonyFrame, TheLineOfTheWallIsThereOnlyWhileItRises) {
    CeremonyFrameRenderer renderer(emptyModel(CeremonyVariant::Wall));
    for (const double t : {0.151, 0.9, 1.54}) {
        renderer.fillField(t);
        EXPECT_FALSE(isUniform(renderer)) << t;
    }
    for (const double t : {0.149, 1.551, 1.6}) {
        renderer.fillField(t);
        EXPECT_TRUE(isUniform(renderer)) << t;
    }
}

TEST(CeremonyFrame, TheArmsOfTheSpiralTurnUntil2Point4) {
    CeremonyFrameRenderer renderer(emptyModel(CeremonyVariant::Spiral));
    for (const double t : {0.0, 1.2, 2.39}) {
        renderer.fillField(t);
        EXPECT_FALSE(isUniform(renderer)) << t;
    }
    renderer.fillField(2.4);
    EXPECT_TRUE(isUniform(renderer));
}

TEST(CeremonyFrame, TheBurstFlashesOverTheWholeScreen) {
    CeremonyFrameRenderer renderer(emptyModel(CeremonyVariant::Nova, {1440, 900}));
    renderer.fillField(0.5);
    EXPECT_NEAR(pixel(renderer, 0, 0).red, 0.22 * 255, 2);
    renderer.fillField(0.58);
    EXPECT_NEAR(pixel(renderer, 0, 0).red, 0.11 * 255, 2);
    renderer.fillField(0.66);
    EXPECT_EQ(pixel(renderer, 0, 0).red, 0);
}

TEST(CeremonyFrame, TheShootingPointComesToRest26PointsBelowTheTopInEveryShow) {
    for (const CeremonyVariant variant : ceremonyvariant::all) {
        for (const bool title : {false, true}) {
            CeremonyGridModel model = emptyModel(variant, {303, 300}); // its centre is a pixel's
            if (title) tests::giveTitle(model);
            CeremonyFrameRenderer renderer(std::move(model));
            renderer.fillField(3.09);
            int brightest = 0;
            for (int y = 0; y < renderer.bufferHeight(); ++y)
                if (pixel(renderer, 50, y).red > pixel(renderer, 50, brightest).red) brightest = y;
            EXPECT_EQ(brightest, 8); // row 8 reaches from 24 to 27 points
            EXPECT_GT(pixel(renderer, 50, brightest).red, 200);
        }
    }
}

TEST(CeremonyFrame, TheShootingPointStartsInTheCentre) {
    CeremonyFrameRenderer renderer(emptyModel(CeremonyVariant::Wall, {303, 300}));
    renderer.fillField(2.79);
    EXPECT_TRUE(isUniform(renderer));
    renderer.fillField(2.81);
    EXPECT_FALSE(isUniform(renderer));
    EXPECT_EQ(pixel(renderer, 50, 20).alpha, 0);
}

TEST(CeremonyFrame, OnlyATitleGlows) {
    for (const bool title : {false, true}) {
        CeremonyGridModel model = emptyModel(CeremonyVariant::Wall);
        if (title) tests::giveTitle(model);
        CeremonyFrameRenderer renderer(std::move(model));
        renderer.fillField(2.6);
        EXPECT_EQ(pixel(renderer, 50, 40).alpha > 20, title);
        EXPECT_EQ(renderer.titleOpacity(2.6) > 0, title);
        EXPECT_EQ(renderer.titleRise(1.8) != 0, title);
    }
}

TEST(CeremonyFrame, DependsOnItsTimeAlone) {
    for (const CeremonyVariant variant : ceremonyvariant::all) {
        CeremonyFrameRenderer used = tests::sampleShow(variant, {600, 400});
        // Glows of other strengths come before each: of the burst, and of the title.
        for (const double t : {0.7, 3.0, 0.3, 0.55, 0.6, 1.2, 1.8, 1.9, 2.8, 2.9}) {
            CeremonyFrameRenderer fresh = tests::sampleShow(variant, {600, 400});
            fresh.fillField(t);
            used.fillField(t);
            EXPECT_TRUE(std::ranges::equal(fresh.fieldBuffer(), used.fieldBuffer())) << t;
        }
    }
}

TEST(CeremonyFrame, OnlyTheBurstShakes) {
    CeremonyFrameRenderer rain = tests::sampleShow(CeremonyVariant::Rain, {300, 200});
    EXPECT_EQ(rain.shakeOffset(0.6).dx, 0);
    CeremonyFrameRenderer nova = tests::sampleShow(CeremonyVariant::Nova, {300, 200});
    EXPECT_NE(nova.shakeOffset(0.6).dx, 0);
}

TEST(CeremonyFrame, InTheOtherByteOrderRedAndBlueChangePlaces) {
    fakes::SplitMixRandom random(3);
    const auto model = CeremonyGridModel::choreograph(CeremonyVariant::Nova, {300, 200}, random);
    CeremonyFrameRenderer rgba(model, PixelOrder::Rgba);
    CeremonyFrameRenderer bgra(model, PixelOrder::Bgra);
    for (const double t : {0.3, 0.6, 1.5, 2.9}) {
        rgba.fillField(t);
        bgra.fillField(t);
        for (std::size_t i = 0; i < rgba.fieldBuffer().size(); ++i) {
            const std::uint32_t a = rgba.fieldBuffer()[i];
            ASSERT_EQ(bgra.fieldBuffer()[i],
                      (a & 0xFF00FF00) | (a & 0xFF) << 16 | (a >> 16 & 0xFF));
        }
    }
}

} // namespace
} // namespace vantle
