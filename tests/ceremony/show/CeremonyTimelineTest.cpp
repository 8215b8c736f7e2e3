// What depends on the time within the show alone.
#include "ceremony/show/CeremonyTimeline.h"

#include "ceremony/show/CeremonyEase.h"
#include "ceremony/show/CeremonyShake.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vantle {
namespace {

using namespace ceremonytimeline;

TEST(CeremonyEase, HoldsBothEnds) {
    EXPECT_EQ(ceremonyEaseOutCubic(-1), 0);
    EXPECT_EQ(ceremonyEaseOutCubic(0.5), 0.875);
    EXPECT_EQ(ceremonyEaseOutCubic(2), 1);
    EXPECT_EQ(ceremonyEaseInQuad(-1), 0);
    EXPECT_EQ(ceremonyEaseInQuad(0.5), 0.25);
    EXPECT_EQ(ceremonyEaseInQuad(2), 1);
}

TEST(CeremonyTimeline, EndsAt3Point1) {
    EXPECT_FALSE(hasEnded(3.0999));
    EXPECT_TRUE(hasEnded(3.1));
}

TEST(CeremonyTimeline, ThePlateRisesStandsAndFades) {
    EXPECT_EQ(plateByte(CeremonyVariant::Scan, 0), 0);
    EXPECT_DOUBLE_EQ(plateAlpha(CeremonyVariant::Scan, 0.15), 0.52 / 4);
    EXPECT_DOUBLE_EQ(plateAlpha(CeremonyVariant::Scan, 0.3), 0.52);
    EXPECT_DOUBLE_EQ(plateAlpha(CeremonyVariant::Nova, 0.25), 0.52 / 4);
    EXPECT_LT(plateAlpha(CeremonyVariant::Nova, 0.3), 0.52);
    EXPECT_EQ(plateByte(CeremonyVariant::Nova, 1.9), 132);
    EXPECT_NEAR(plateAlpha(CeremonyVariant::Nova, 2.25), 0.26, 1e-12);
    EXPECT_EQ(plateByte(CeremonyVariant::Nova, 2.55), 0);
    EXPECT_EQ(plateByte(CeremonyVariant::Nova, 3), 0);
}

TEST(CeremonyTimeline, TheTitleRisesInHoldsLiftsAndFades) {
    EXPECT_EQ(titleOpacity(1.69), 0);
    EXPECT_EQ(titleOpacity(1.7), 0);
    EXPECT_DOUBLE_EQ(titleRise(1.7), -4);
    EXPECT_DOUBLE_EQ(titleOpacity(2.3), 0.03 * std::sin(11.5) + 0.97);
    EXPECT_EQ(titleRise(2.3), 0);
    EXPECT_NEAR(titleOpacity(2.9), 0.5, 1e-9);
    EXPECT_NEAR(titleRise(2.9), 23, 1e-9);
    EXPECT_EQ(titleOpacity(3.1), 0);
}

TEST(CeremonyTimeline, TheCaptionShowsFrom0Point3To1Point6) {
    EXPECT_EQ(captionOpacity(0.3), 0);
    EXPECT_NEAR(captionOpacity(0.425), 0.2, 1e-9);
    EXPECT_EQ(captionOpacity(1), 0.4);
    EXPECT_NEAR(captionOpacity(1.475), 0.2, 1e-9);
    EXPECT_EQ(captionOpacity(1.6), 0);
}

/// The largest change of a curve within a thousandth of a second.
template <typename Curve>
double largestStep(Curve curve) {
    double largest = 0;
    for (int i = -100; i < 3200; ++i)
        largest = std::max(largest, std::abs(curve((i + 1) / 1000.0) - curve(i / 1000.0)));
    return largest;
}

TEST(CeremonyTimeline, NothingJumps) {
    for (const CeremonyVariant variant : ceremonyvariant::all)
        EXPECT_LT(largestStep([&](double t) { return plateAlpha(variant, t); }), 0.004);
    // The title stops breathing where it lifts off, which is too little to be seen.
    EXPECT_LT(largestStep(titleOpacity), 0.06);
    EXPECT_LT(largestStep(titleRise), 0.16);
    EXPECT_LT(largestStep(titleGlow), 0.0034);
    EXPECT_LT(largestStep(captionOpacity), 0.0017);
}

TEST(CeremonyTimeline, TheGlowComesAndGoesWithTheTitle) {
    EXPECT_EQ(titleGlow(1.69), 0);
    EXPECT_NEAR(titleGlow(1.875), 0.5, 1e-9);
    EXPECT_EQ(titleGlow(2.05), 1);
    EXPECT_EQ(titleGlow(2.74), 1);
    EXPECT_NEAR(titleGlow(2.9), 0.5, 1e-9);
    EXPECT_NEAR(titleGlow(3.05), 0, 1e-9);
    EXPECT_EQ(titleGlow(3.2), 0);
}

TEST(CeremonyTimeline, TheTitleStaysUpUntilTheEnd) {
    EXPECT_EQ(titleRise(0), -4);
    EXPECT_NEAR(titleRise(1.85), -4 * 0.125, 1e-9);
    EXPECT_EQ(titleRise(2.74), 0);
    EXPECT_EQ(titleRise(3.09), 46);
}

TEST(CeremonyShake, IsStillOutsideItsThirdOfASecond) {
    CeremonyShake shake;
    for (const double t : {0.0, 0.4999, 0.85, 2.0}) {
        EXPECT_EQ(shake.at(t).dx, 0);
        EXPECT_EQ(shake.at(t).dy, 0);
    }
    EXPECT_EQ(shake.state(), 0x243F6A8885A308D3U);
}

TEST(CeremonyShake, RunsThroughTheSameNumbersInEveryShow) {
    CeremonyShake shake;
    EXPECT_EQ(shake.at(0.5).dx, 0.2544451895968831);
    CeremonyShake again;
    EXPECT_EQ(again.at(0.5).dy, 0.3129421442614069);
    EXPECT_EQ(again.state(), shake.state());
}

TEST(CeremonyShake, CalmsDown) {
    CeremonyShake shake;
    for (int i = 0; i < 350; ++i) {
        const double t = 0.5 + i / 1000.0;
        const double widest = 6 * (1 - (t - 0.5) / 0.35);
        const CeremonyShake::Offset offset = shake.at(t);
        EXPECT_LE(std::abs(offset.dx), widest);
        EXPECT_LE(std::abs(offset.dy), widest);
    }
}

} // namespace
} // namespace vantle
