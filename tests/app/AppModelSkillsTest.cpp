#include "app/ModelWorld.h"
#include "support/Text.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

#include <cerrno>

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
    world.autoSkill->rules().setRule(text("editor"), text("marketing"));
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    model.toggleVantle();
    world.time.advance(30.0);
    // As a surface does it: with a name that stands in the model's own list.
    model.deleteSkill(model.skills()[2].id);
    EXPECT_EQ(world.note(), text("Deleted Marketing"));
    EXPECT_EQ(model.tracker().currentSkillId(), text("building"));
    ASSERT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.log().front().skillId, text("marketing"));
    EXPECT_FALSE(world.autoSkill->rules().rules().contains(text("editor")));
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

class UnreadableSkillsTest : public testing::Test {
protected:
    /// A user's own list, in a file of that mode.
    void store(int mode) {
        world.disk.setContent(ModelWorld::file("skills.json"), kSkills, mode);
        settings::skillsMigrationVersion.write(world.preferences, 1);
    }

    const QByteArray kSkills = R"([{"builtin":false,"hexRGB":1193046,"id":"mine","name":"Mine"}])";
    ModelWorld world;
};

TEST_F(UnreadableSkillsTest, ModeThatShutsTheOwnerOutIsRepairedBeforeTheFileIsRead) {
    store(0);
    AppModel& model = world.launch();
    ASSERT_EQ(model.skills().size(), 1u);
    EXPECT_EQ(model.skills().front().name, text("Mine"));
    EXPECT_EQ(world.disk.content(ModelWorld::file("skills.json")), kSkills);
    EXPECT_EQ(world.disk.mode(ModelWorld::file("skills.json")).value(), 0600);
    EXPECT_EQ(world.note(), QString());
}

TEST_F(UnreadableSkillsTest, FileThatStaysUnreadableIsToldAndLeftAlone) {
    store(0);
    world.files.fail(fakes::FaultyFileSystem::Operation::SetMode, text("skills.json"), EPERM);
    AppModel& model = world.launch();
    const auto isTold = [&] {
        return world.note().startsWith(
            text("Couldn’t read your modes. Check folder permissions, then "
                 "start Vantle again. (Permission denied"));
    };
    EXPECT_TRUE(isTold()) << world.note().toStdString();
    EXPECT_EQ(model.skills().size(), 6u);
    model.addSkill(text("Yours"), 0x30D158);
    EXPECT_TRUE(isTold());
    model.updateSkill(text("building"), text("Ship"), 0x30D158);
    EXPECT_TRUE(isTold());
    model.deleteSkill(text("marketing"));
    EXPECT_TRUE(isTold());
    EXPECT_EQ(world.disk.content(ModelWorld::file("skills.json")), kSkills);
    // What counts goes on.
    world.press();
    world.time.advance(60.0);
    world.press();
    EXPECT_EQ(world.log().size(), 1u);
}

TEST_F(AppModelSkillsTest, ChoosingTheRunningSkillChangesNothingInTheTracker) {
    world.press();
    const auto startedAt = model.tracker().startedAt();
    world.time.advance(5.0);
    model.selectSkill(text("building"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(model.tracker().startedAt(), startedAt);
    EXPECT_TRUE(world.log().empty());
}

TEST_F(AppModelSkillsTest, ChoosingAnUnknownSkillChangesNothing) {
    model.selectSkill(text("nonsense"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(model.selectedSkillId(), text("building"));
}

TEST_F(AppModelSkillsTest, AChoiceByHandSplitsTheSessionWithAToast) {
    world.linkShortcuts();
    world.press();
    world.time.advance(61.0);
    world.told.calls.clear();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(model.tracker().currentSkillId(), text("marketing"));
    ASSERT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.log().front().activeSeconds, 61);
    EXPECT_TRUE(world.told.has(text("toast Build 7A78FF 61")));
    EXPECT_TRUE(world.told.has(text("notch retag marketing flash 1")));
    EXPECT_FALSE(world.told.has(text("focus started")));
    EXPECT_FALSE(world.told.has(text("summary")));
}

TEST_F(AppModelSkillsTest, AnAutomaticChoiceSplitsWithoutAToastAndWithoutOfferingARule) {
    world.frontmost.application = Application{text("editor"), text("Editor")};
    world.press();
    world.time.advance(61.0);
    world.told.calls.clear();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Auto);
    EXPECT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.told.calls, QStringList{text("notch retag marketing flash 1")});
}

TEST_F(AppModelSkillsTest, ASplitLosesNoSecondAtTheSeam) {
    world.press();
    world.time.advance(90.0);
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.time.advance(30.0);
    world.press();
    const auto log = world.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].endedAt, log[1].startedAt);
    EXPECT_EQ(log[0].activeSeconds + log[1].activeSeconds, 120);
}

TEST_F(AppModelSkillsTest, ASplitOnASlowDiskLosesNoSecondAtTheSeam) {
    world.press();
    world.time.advance(90.5);
    world.files.onCall = [this](fakes::FaultyFileSystem::Operation operation) {
        if (operation == fakes::FaultyFileSystem::Operation::Sync) world.time.freeze(0.75);
    };
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.files.onCall = nullptr;
    world.time.advance(30.0);
    world.press();
    const auto log = world.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].endedAt, log[1].startedAt);
    EXPECT_GE(log[1].activeSeconds, 30 + 1) << "the time of the write counts for the second half";
}

TEST_F(AppModelSkillsTest, ASleepInTheMiddleOfASplitCountsForNeitherHalf) {
    world.press();
    world.time.advance(90.0);
    world.files.onCall = [this](fakes::FaultyFileSystem::Operation operation) {
        if (operation != fakes::FaultyFileSystem::Operation::Sync) return;
        world.files.onCall = nullptr;
        world.time.suspend(3600.0);
    };
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.idleSource.touch();
    world.time.advance(30.0);
    world.press();
    const auto log = world.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].activeSeconds, 90);
    EXPECT_EQ(log[1].activeSeconds, 30);
}

TEST_F(AppModelSkillsTest, AFailedSplitKeepsTheOldSessionAndTheOldChoice) {
    world.press();
    world.breakWrites(text("sessions.jsonl"), true);
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(model.tracker().currentSkillId(), text("building"));
    EXPECT_EQ(model.selectedSkillId(), text("building"));
    EXPECT_EQ(world.preferences.string(text("skill.lastUsed")), text("building"));
    EXPECT_TRUE(world.note().contains(text("Couldn’t save your hours")));
}

TEST_F(AppModelSkillsTest, AnIdleChoiceOnlyColoursTheCapsule) {
    world.told.calls.clear();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_EQ(world.told.calls, QStringList{text("notch retag marketing flash 0")});
    EXPECT_EQ(model.tracker().state(), TrackerCore::State::Idle);
}

} // namespace
} // namespace vantle::tests
