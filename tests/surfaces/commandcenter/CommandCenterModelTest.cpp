#include "surfaces/commandcenter/CommandCenterModel.h"

#include "surfaces/commandcenter/CommandCenterWorld.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class CommandCenterModelTest : public testing::Test, protected CommandCenterWorld {};

TEST_F(CommandCenterModelTest, AtRestItOffersTheChosenMode) {
    EXPECT_EQ(content->title(), QStringLiteral("Ready to focus"));
    EXPECT_EQ(content->primaryText(), QStringLiteral("Enter Vantle"));
    EXPECT_EQ(content->primaryColor(), QColor(0x7A, 0x78, 0xFF));
    EXPECT_EQ(content->shortcut(), QStringLiteral("⌥⌘B"));
}

TEST_F(CommandCenterModelTest, ChoosingAModeNamesItOnTheButton) {
    content->selectMode(mode(1, SkillListModel::SkillId).toString());
    EXPECT_EQ(content->primaryText(), QStringLiteral("Enter Design Mode"));
    EXPECT_FALSE(mode(0, SkillListModel::Selected).toBool());
    EXPECT_TRUE(mode(1, SkillListModel::Selected).toBool());
}

TEST_F(CommandCenterModelTest, TheRunningTimeGoesOnWhileItIsLookedAt) {
    content->pressPrimary();
    world.settle();
    world.time.advance(Seconds(180));
    EXPECT_EQ(content->primaryText(), QStringLiteral("Stop · 3 min"));
    EXPECT_EQ(content->title(), QStringLiteral("In Vantle · 3 min"));
    content->pressPrimary();
    EXPECT_EQ(content->title(), QStringLiteral("Ready to focus"));
}

TEST_F(CommandCenterModelTest, AHiddenPanelRunsNoClock) {
    content->pressPrimary();
    world.settle();
    int changes = 0;
    QObject::connect(content.get(), &CommandCenterModel::statusChanged, [&] { ++changes; });
    world.time.advance(Seconds(10));
    EXPECT_GE(changes, 9);
    content->setShown(false);
    changes = 0;
    world.time.advance(Seconds(10));
    EXPECT_EQ(changes, 0);
}

TEST_F(CommandCenterModelTest, APausedSessionSaysSo) {
    content->pressPrimary();
    world.settle();
    world.time.advance(Seconds(180));
    world.model->tracker().pause(world.time.now());
    EXPECT_TRUE(content->isPaused());
    EXPECT_EQ(content->title(), QStringLiteral("Paused (away) · Build · 3 min"));
    EXPECT_EQ(content->primaryText(), QStringLiteral("Stop · 3 min · paused"));
}

TEST_F(CommandCenterModelTest, AModeIsAddedByTheEditor) {
    content->addMode();
    content->editor()->setName(QStringLiteral("Research"));
    content->editor()->commit();
    EXPECT_EQ(content->modes()->rowCount(), 7);
    EXPECT_EQ(mode(6, SkillListModel::Name), QStringLiteral("Research"));
    EXPECT_EQ(content->note(), QStringLiteral("Added Research"));
    EXPECT_FALSE(content->editor()->isShown());
    EXPECT_EQ(calls.count(QStringLiteral("relayout")), 2);
}

TEST_F(CommandCenterModelTest, AModeIsRenamedAndRecolouredByTheEditor) {
    content->editMode(mode(1, SkillListModel::SkillId).toString());
    content->editor()->setName(QStringLiteral("Drawing"));
    content->editor()->chooseColor(3);
    content->editor()->commit();
    EXPECT_EQ(mode(1, SkillListModel::Name), QStringLiteral("Drawing"));
    EXPECT_EQ(mode(1, SkillListModel::HexRGB).toUInt(), Skill::palette[3]);
}

TEST_F(CommandCenterModelTest, AnUnknownModeIsNotEdited) {
    content->editMode(QStringLiteral("nobody"));
    EXPECT_FALSE(content->editor()->isShown());
}

TEST_F(CommandCenterModelTest, TheLastModeCannotBeDeleted) {
    while (content->modes()->rowCount() > 1) {
        EXPECT_TRUE(mode(0, SkillListModel::Deletable).toBool());
        content->deleteMode(mode(0, SkillListModel::SkillId).toString());
    }
    EXPECT_FALSE(mode(0, SkillListModel::Deletable).toBool());
}

TEST_F(CommandCenterModelTest, DeletingTheModeThatIsEditedClosesTheEditor) {
    const QString id = mode(1, SkillListModel::SkillId).toString();
    content->editMode(id);
    content->deleteMode(id);
    EXPECT_FALSE(content->editor()->isShown());
}

TEST_F(CommandCenterModelTest, TheDoorsLeadToTheWindows) {
    EXPECT_EQ(content->doors(), QStringList({QStringLiteral("Hours"), QStringLiteral("Notes")}));
    EXPECT_EQ(content->doorKey(0), QStringLiteral("D"));
    EXPECT_EQ(content->doorKey(1), QString());
    content->openDoor(1);
    content->openDoor(0);
    content->openDoor(2); // there is none
    EXPECT_EQ(opened, std::vector({WindowId::Log, WindowId::Dashboard}));
    content->openLastWeek();
    content->quit();
    EXPECT_EQ(calls, QStringList({QStringLiteral("wrapped lastWeek"), QStringLiteral("quit")}));
}

TEST_F(CommandCenterModelTest, TheButtonDrawsAttentionOnce) {
    int wanted = 0;
    QObject::connect(content.get(), &CommandCenterModel::primaryPulseWanted, [&] { ++wanted; });
    world.model->setPulsePrimaryOnce(true);
    EXPECT_EQ(wanted, 1);
    EXPECT_TRUE(content->takePrimaryPulse());
    EXPECT_FALSE(content->takePrimaryPulse());
    EXPECT_EQ(wanted, 1);
}

TEST_F(CommandCenterModelTest, ACreditThatCannotBeConfirmedIsExplained) {
    content->backfill(10);
    EXPECT_EQ(content->note(), QStringLiteral("Started now · couldn't confirm 10 min of activity"));
}

} // namespace
} // namespace vantle::tests
