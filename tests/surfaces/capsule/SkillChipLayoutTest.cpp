#include "surfaces/capsule/SkillChipLayout.h"

#include "surfaces/capsule/CapsuleText.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

/// A skill whose name measures so many px with ten() below: ten a letter.
Skill skill(int letters) {
    return {QStringLiteral("id"), QString(letters, QLatin1Char('x')), 0x7A78FF, false};
}
double ten(const QString& name) { return 10.0 * static_cast<double>(name.size()); }

SkillChipLayout layout(const std::vector<Skill>& skills, double width, bool add = false) {
    return SkillChipLayout::compute(skills, width, add, ten);
}

TEST(SkillChipLayout, WithoutSkillsThereIsNothing) {
    EXPECT_TRUE(layout({}, 420).items.empty());
    EXPECT_EQ(layout({}, 420).size, QSizeF(0, 0));
}

TEST(SkillChipLayout, AChipIsItsNameRoundedUpAnd36) {
    const auto chips =
        SkillChipLayout::compute({skill(1)}, 420, false, [](const QString&) { return 30.2; });
    ASSERT_EQ(chips.items.size(), 1U);
    EXPECT_EQ(chips.items[0].frame, QRectF(0, 0, 67, 24));
    EXPECT_EQ(chips.size, QSizeF(67, 24));
    EXPECT_FALSE(chips.items[0].isAdd());
}

TEST(SkillChipLayout, ChipsStandSixApartAndWrapWhenOneHasNoRoom) {
    // 136, 136 and 136 with gaps of 6 are 420.
    const auto three = layout({skill(10), skill(10), skill(10)}, 420);
    EXPECT_EQ(three.items[2].frame, QRectF(284, 0, 136, 24));
    EXPECT_EQ(three.size, QSizeF(420, 24));
    const auto wrapped = layout({skill(10), skill(10), skill(11)}, 420);
    EXPECT_EQ(wrapped.items[1].frame, QRectF(142, 0, 136, 24));
    EXPECT_EQ(wrapped.items[2].frame, QRectF(0, 30, 146, 24));
    EXPECT_EQ(wrapped.size, QSizeF(278, 54));
}

TEST(SkillChipLayout, AChipWiderThanTheLimitStandsAloneAndWidensTheWhole) {
    const auto chips = layout({skill(2), skill(45), skill(2)}, 420);
    EXPECT_EQ(chips.items[1].frame, QRectF(0, 30, 486, 24));
    EXPECT_EQ(chips.items[2].frame, QRectF(0, 60, 56, 24));
    EXPECT_EQ(chips.size, QSizeF(486, 84));
    EXPECT_EQ(layout({skill(45)}, 420).items[0].frame.topLeft(), QPointF(0, 0));
}

TEST(SkillChipLayout, TheAddChipIsThirtyWideAndWrapsToo) {
    const auto beside = layout({skill(10)}, 172, true);
    ASSERT_EQ(beside.items.size(), 2U);
    EXPECT_TRUE(beside.items[1].isAdd());
    EXPECT_EQ(beside.items[1].frame, QRectF(142, 0, 30, 24));
    EXPECT_EQ(beside.size, QSizeF(172, 24));
    const auto below = layout({skill(10)}, 171, true);
    EXPECT_EQ(below.items[1].frame, QRectF(0, 30, 30, 24));
    EXPECT_EQ(below.size, QSizeF(136, 54));
    EXPECT_EQ(layout({}, 420, true).size, QSizeF(30, 24));
}

TEST(SkillChipLayout, TheSixSkillsOfANewPersonFillTwoRowsOf342) {
    const CapsuleText text;
    const auto defaults = Skill::defaults();
    const auto chips =
        SkillChipLayout::compute({defaults.begin(), defaults.end()}, 420, false,
                                 [&](const QString& name) { return text.chipNameWidth(name); });
    EXPECT_EQ(chips.size.height(), 54);
    EXPECT_NEAR(chips.size.width(), 342, 8); // as the font is hinted here
}

} // namespace
} // namespace vantle::tests
