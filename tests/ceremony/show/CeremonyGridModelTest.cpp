// Who is born when, and how the screen is divided for it.
#include "ceremony/show/CeremonyGridModel.h"

#include "fakes/SplitMixRandom.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vantle {
namespace {

/// Always the same number.
class Constant final : public RandomSource {
public:
    explicit Constant(double value) : m_value(value) {}
    double uniform() override { return m_value; }

private:
    double m_value;
};

CeremonyGridModel sample(CeremonyVariant variant, QSizeF size = {1440, 900}) {
    fakes::SplitMixRandom random(5);
    return CeremonyGridModel::choreograph(variant, size, random);
}

CeremonyGrid grid(double width, double height) { return CeremonyGrid::forScreen({width, height}); }

TEST(CeremonyGrid, ScreensAreAtLeast24PointsWideAndHigh) {
    const CeremonyGrid least{24, 24, 12, 2, 2};
    EXPECT_EQ(grid(24, 24), least);
    EXPECT_EQ(grid(10, 3), least);
    EXPECT_EQ(grid(0, -5), least);
    EXPECT_EQ(grid(std::nan(""), std::nan("")), least);
}

TEST(CeremonyGrid, ThePitchIsEvenAndAtLeast12) {
    EXPECT_EQ(grid(1440, 900), (CeremonyGrid{1440, 900, 12, 120, 75}));
    EXPECT_EQ(grid(6016, 3384), (CeremonyGrid{6016, 3384, 40, 151, 85}));
}

TEST(CeremonyGrid, APitchThatGivesTooManyCellsGrowsOnceBy2) {
    const double formula = 2 * std::ceil(0.5 * std::sqrt(4108.0 * 2465 / 13000));
    EXPECT_GT(std::ceil(4108 / formula) * std::ceil(2465 / formula), CeremonyGrid::maxFieldPixels);
    EXPECT_EQ(grid(4108, 2465).cell, formula + 2);
    // A strip is still above the limit then, and is taken as it stands.
    const CeremonyGrid strip = grid(400000, 24);
    EXPECT_EQ(strip.cell, 2 * std::ceil(0.5 * std::sqrt(400000.0 * 24 / 13000)) + 2);
    EXPECT_GT(strip.cols * strip.rows, CeremonyGrid::maxFieldPixels);
}

TEST(CeremonyGridModel, SoManyCellsHoldADotAndNoCellTwo) {
    for (const CeremonyVariant variant : ceremonyvariant::all) {
        const CeremonyGridModel model = sample(variant);
        const double cells = model.cols * model.rows;
        EXPECT_NEAR(static_cast<double>(model.fieldIndex.size()) / cells, 0.55, 0.02);
        EXPECT_NEAR(static_cast<double>(model.backIndex.size()) / cells, 0.135, 0.02);
        std::vector<std::int32_t> indices = model.fieldIndex;
        indices.insert(indices.end(), model.backIndex.begin(), model.backIndex.end());
        std::ranges::sort(indices);
        EXPECT_TRUE(std::ranges::adjacent_find(indices) == indices.end());
    }
}

TEST(CeremonyGridModel, ArraysThatBelongTogetherHaveOneLength) {
    const CeremonyGridModel model = sample(CeremonyVariant::Nova);
    for (const std::size_t size :
         {model.fieldBorn.size(), model.fieldVanish.size(), model.fieldColor.size(),
          model.fieldBright.size(), model.fieldPhase.size(), model.fieldFlicker.size()})
        EXPECT_EQ(size, model.fieldIndex.size());
    for (const std::size_t size : {model.backBorn.size(), model.backVanish.size(),
                                   model.backColor.size(), model.backPhase.size()})
        EXPECT_EQ(size, model.backIndex.size());
}

TEST(CeremonyGridModel, FlagsAreOnesAndZerosAndColorsWithinThePalette) {
    const CeremonyGridModel model = sample(CeremonyVariant::Rain);
    EXPECT_EQ(*std::ranges::max_element(model.fieldBright), 1);
    EXPECT_EQ(*std::ranges::max_element(model.fieldFlicker), 1);
    EXPECT_EQ(*std::ranges::min_element(model.fieldBright), 0);
    EXPECT_EQ(*std::ranges::min_element(model.fieldFlicker), 0);
    EXPECT_EQ(*std::ranges::max_element(model.fieldColor), 4);
    EXPECT_EQ(*std::ranges::max_element(model.backColor), 4);
    EXPECT_LT(*std::ranges::max_element(model.fieldPhase), 6.283F);
}

TEST(CeremonyGridModel, EveryDotLivesWithinTheShow) {
    for (const CeremonyVariant variant : ceremonyvariant::all) {
        const CeremonyGridModel model = sample(variant);
        for (std::size_t i = 0; i < model.fieldIndex.size(); ++i) {
            EXPECT_GE(model.fieldBorn[i], 0.15F);
            EXPECT_LT(model.fieldBorn[i], model.fieldVanish[i]);
            EXPECT_LT(model.fieldVanish[i], CeremonyGridModel::endTime);
        }
    }
}

TEST(CeremonyGridModel, TheLineSweepsFromTheLeftBothTimes) {
    Constant half(0.5);
    const auto model = CeremonyGridModel::choreograph(CeremonyVariant::Scan, {120, 120}, half);
    ASSERT_EQ(model.fieldIndex.size(), 100U); // every cell has a front dot
    for (std::size_t i = 0; i < 100; ++i) {
        const double across = (static_cast<double>(i % 10) + 0.5) / 10;
        EXPECT_FLOAT_EQ(model.fieldBorn[i], static_cast<float>(1.35 * across + 0.15 + 0.02));
        EXPECT_FLOAT_EQ(model.fieldVanish[i], static_cast<float>(0.72 * across + 1.85 + 0.05));
    }
}

TEST(CeremonyGridModel, DotsBehindOutliveThoseInFront) {
    Constant low(0.2); // every cell has a dot behind
    const auto model = CeremonyGridModel::choreograph(CeremonyVariant::Scan, {120, 120}, low);
    ASSERT_EQ(model.backIndex.size(), 100U);
    EXPECT_FLOAT_EQ(model.backVanish[0], static_cast<float>(0.72 * 0.05 + 1.85 + 0.02 + 0.15));
}

TEST(CeremonyGridModel, TheBurstRunsOutwardsAndTheWallUpwards) {
    Constant half(0.5);
    const auto nova = CeremonyGridModel::choreograph(CeremonyVariant::Nova, {120, 120}, half);
    EXPECT_LT(nova.fieldBorn[55], nova.fieldBorn[0]);
    EXPECT_GT(nova.fieldVanish[55], nova.fieldVanish[0]);
    EXPECT_GT(nova.fieldBorn[55], 0.5F);
    const auto wall = CeremonyGridModel::choreograph(CeremonyVariant::Wall, {120, 120}, half);
    EXPECT_GT(wall.fieldBorn[5], wall.fieldBorn[95]);
    EXPECT_LT(wall.fieldVanish[5], wall.fieldVanish[95]);
}

TEST(CeremonyGridModel, TheArmOfTheSpiralIsASeamOnTheLeft) {
    Constant half(0.5);
    const auto model = CeremonyGridModel::choreograph(CeremonyVariant::Spiral, {480, 480}, half);
    // The cells above and below the middle, at the left edge and at the right edge.
    const auto born = [&](int row, int col) {
        return double{model.fieldBorn[static_cast<std::size_t>(row * model.cols + col)]};
    };
    EXPECT_NEAR(born(20, 0) - born(19, 0), 0.45, 0.02);
    EXPECT_NEAR(born(20, 39) - born(19, 39), 0, 0.02);
}

TEST(CeremonyGridModel, OnlyTheBurstHasChargersAndSparks) {
    const CeremonyGridModel nova = sample(CeremonyVariant::Nova);
    ASSERT_EQ(nova.chargerX.size(), 170U);
    const std::vector<std::uint8_t> colors(nova.chargerColor.begin(),
                                           nova.chargerColor.begin() + 6);
    EXPECT_EQ(colors, (std::vector<std::uint8_t>{0, 0, 0, 3, 4, 0}));
    ASSERT_EQ(nova.sparkAngle.size(), 18U);
    for (std::size_t i = 0; i < 18; ++i) {
        const double spread = static_cast<double>(i) / 18 * 6.283;
        EXPECT_GE(nova.sparkAngle[i], static_cast<float>(spread));
        EXPECT_LT(nova.sparkAngle[i], static_cast<float>(spread + 0.34));
        EXPECT_GE(nova.sparkSpeed[i], 900.0F);
        EXPECT_LT(nova.sparkSpeed[i], 1600.0F);
    }
    const CeremonyGridModel rain = sample(CeremonyVariant::Rain);
    EXPECT_TRUE(rain.chargerX.empty() && rain.chargerY.empty() && rain.chargerColor.empty());
    EXPECT_TRUE(rain.sparkAngle.empty() && rain.sparkSpeed.empty() && rain.sparkLength.empty());
}

TEST(CeremonyGridModel, ChargersStartAtLeast140PointsFromTheCentreAndMayStartOutside) {
    const CeremonyGridModel nova = sample(CeremonyVariant::Nova, {300, 200});
    bool outside = false;
    for (std::size_t i = 0; i < nova.chargerX.size(); ++i) {
        const double dx = double{nova.chargerX[i]} - 150;
        const double dy = double{nova.chargerY[i]} - 100;
        EXPECT_GE(std::hypot(dx, dy), 139.99);
        outside = outside || std::abs(dx) > 150 || std::abs(dy) > 100;
    }
    EXPECT_TRUE(outside);
}

TEST(CeremonyGridModel, BuildAddsTitleAndCaptionToTheSameShow) {
    fakes::SplitMixRandom random(5);
    const auto model = CeremonyGridModel::build(CeremonyVariant::Wall, {300, 200},
                                                QStringLiteral("Writing"), random);
    EXPECT_EQ(model.fieldBorn, sample(CeremonyVariant::Wall, {300, 200}).fieldBorn);
    EXPECT_FALSE(model.titleImage.isNull());
    EXPECT_FALSE(model.captionImage.isNull());
    EXPECT_EQ(model.titleSize * 2, QSizeF(model.titleImage.size()));
    EXPECT_EQ(model.captionSize * 2, QSizeF(model.captionImage.size()));
}

} // namespace
} // namespace vantle
