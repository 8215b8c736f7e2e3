#include "app/ModelWorld.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class AppModelSkillsTest : public testing::Test {
protected:
    ModelWorld world;
    AppModel& model = world.launch();
};

TEST_F(AppModelSkillsTest, ANewSkillIsSelectedWhileIdle) {
    model.deleteSkill(text("connections"));
    model.addSkill(text("Deep Work"), 0x30D158);
    EXPECT_EQ(world.note(), text("Added Deep Work"));
    EXPECT_EQ(model.selectedSkillId(), text("deep_work"));
    EXPECT_EQ(model.skills().back().name, text("Deep Work"));
    EXPECT_EQ(world.told.calls.last(), text("notch idle deep_work flash 0"));
}

TEST_F(AppModelSkillsTest, ANewSkillIsNotSelectedInASession) {
    model.toggleVantle();
    model.addSkill(text("Deep Work"), 0x30D158);
    EXPECT_EQ(model.selectedSkillId(), text("building"));
}

TEST_F(AppModelSkillsTest, AddingAnExistingNameWhileIdleSelectsThatSkill) {
    model.addSkill(text("  MARKETING "), 0x30D158);
    EXPECT_EQ(world.note(), text("Marketing already exists"));
    EXPECT_EQ(model.selectedSkillId(), text("marketing"));
    EXPECT_EQ(model.skills().size(), 6u);
}

TEST_F(AppModelSkillsTest, AFullListOrALongNameIsRefused) {
    model.addSkill(text("a name of more than twenty"), 0);
    EXPECT_EQ(world.note(), text("Couldn’t add mode · 8 modes max, 20 characters"));
    model.addSkill(text("Seven"), 0);
    model.addSkill(text("Eight"), 0);
    model.addSkill(text("Nine"), 0);
    EXPECT_EQ(world.note(), text("Couldn’t add mode · 8 modes max, 20 characters"));
    EXPECT_EQ(model.skills().size(), 8u);
}

TEST_F(AppModelSkillsTest, ARenameIsSavedAndShownInTheRunningCapsule) {
    model.toggleVantle();
    model.updateSkill(text("building"), text("Ship"), 0x30D158);
    EXPECT_EQ(world.note(), text("Saved Ship"));
    EXPECT_EQ(world.told.calls.last(), text("notch retag building flash 1"));
    EXPECT_EQ(model.skills().front().name, text("Ship"));
}

TEST_F(AppModelSkillsTest, ATakenOrEmptyNameIsRefused) {
    model.updateSkill(text("building"), text("marketing"), 0);
    EXPECT_EQ(world.note(), text("That mode already exists"));
    model.updateSkill(text("building"), text("   "), 0);
    EXPECT_EQ(world.note(), text("Couldn’t save mode · names are 1 to 20 characters"));
}

TEST_F(AppModelSkillsTest, DeletingTheRunningSkillSplitsTheSessionOntoTheFirst) {
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    model.toggleVantle();
    world.time.advance(30.0);
    // As a surface does it: with a name that stands in the model's own list.
    model.deleteSkill(model.skills()[2].id);
    EXPECT_EQ(world.note(), text("Deleted Marketing"));
    EXPECT_EQ(model.tracker().currentSkillId(), text("building"));
    ASSERT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.log().front().skillId, text("marketing"));
    EXPECT_TRUE(world.told.has(text("auto remove rules marketing")));
}

TEST_F(AppModelSkillsTest, DeletingTheSelectedSkillSelectsTheFirst) {
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    model.deleteSkill(text("marketing"));
    EXPECT_EQ(model.selectedSkillId(), text("building"));
    EXPECT_EQ(world.note(), text("Deleted Marketing"));
}

TEST_F(AppModelSkillsTest, TheLastSkillStays) {
    for (const Skill& skill : std::vector<Skill>(model.skills()))
        if (skill.id != text("building")) model.deleteSkill(skill.id);
    model.deleteSkill(text("building"));
    EXPECT_EQ(world.note(), text("Keep at least one skill"));
    EXPECT_EQ(model.skills().size(), 1u);
}

TEST_F(AppModelSkillsTest, TheCapsuleEditsSkillsInPlace) {
    world.told.edit.onUpdate(text("building"), text("Ship"), 0x30D158);
    EXPECT_EQ(model.skills().front().name, text("Ship"));
    world.told.edit.onAdd(text("Deep Work"), 0x30D158);
    EXPECT_EQ(model.skills().size(), 7u);
    world.told.edit.onDelete(text("deep_work"));
    EXPECT_EQ(model.skills().size(), 6u);
}

} // namespace
} // namespace vantle::tests
