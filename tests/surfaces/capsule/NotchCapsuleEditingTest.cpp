#include "CapsuleWorld.h"
#include "support/QtPrinters.h"
#include "support/Text.h"
#include "surfaces/capsule/NotchCapsule.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

/// An open idle capsule with the pointer on the chip of "Design".
class NotchCapsuleEditingTest : public testing::Test {
protected:
    NotchCapsuleEditingTest() {
        capsule.setStage(&stage);
        stage.pointer = {200, 70};
        capsule.setHovered(true);
    }
    void pointAway() {
        stage.pointer = {-1000, -1000};
        capsule.setHovered(false);
    }

    CapsuleWorld world;
    fakes::VirtualTime& time = world.tracking.time;
    FakeStage stage;
    NotchCapsule capsule{world.environment(), world.idleForm(), world.screens.shapes.front()};
    const QString design = world.skills[1].id;
};

TEST_F(NotchCapsuleEditingTest, TheMenuBelongsToItsChipAndHasTheKeyboard) {
    capsule.openMenu(design);
    EXPECT_EQ(capsule.menuSkillId(), design);
    EXPECT_EQ(capsule.menuSkillName(), text("Design"));
    EXPECT_TRUE(stage.hasKeyboard);
    EXPECT_EQ(capsule.overlayAnchor().height(), 24);
    EXPECT_EQ(capsule.overlayAnchor().top(), 60);
    EXPECT_GT(capsule.overlayAnchor().left(), capsule.openFrame().left() + 18);
    capsule.dismissOverlay();
    EXPECT_TRUE(capsule.menuSkillId().isEmpty());
    EXPECT_FALSE(stage.hasKeyboard);
}

TEST_F(NotchCapsuleEditingTest, AnUnknownChipHasNoMenu) {
    capsule.openMenu(text("nobody"));
    EXPECT_TRUE(capsule.menuSkillId().isEmpty());
    EXPECT_EQ(capsule.collapseSuspendCount(), 0);
}

TEST_F(NotchCapsuleEditingTest, TwoMenusInARowEachSuspendOnceAndItStaysOpenThroughout) {
    capsule.openMenu(design);
    EXPECT_EQ(capsule.collapseSuspendCount(), 1);
    pointAway();
    time.advance(3);
    capsule.dismissOverlay();
    EXPECT_EQ(capsule.collapseSuspendCount(), 1); // until the present event is over
    time.settle();
    EXPECT_EQ(capsule.collapseSuspendCount(), 0);
    capsule.openMenu(world.skills[2].id);
    EXPECT_EQ(capsule.collapseSuspendCount(), 1);
    time.advance(3);
    EXPECT_TRUE(capsule.isExpanded());
    capsule.dismissOverlay();
    time.settle();
    EXPECT_EQ(capsule.collapseSuspendCount(), 0);
    time.advance(0.31);
    EXPECT_FALSE(capsule.isExpanded());
}

TEST_F(NotchCapsuleEditingTest, ASecondMenuTakesThePlaceOfTheFirst) {
    capsule.openMenu(design);
    capsule.openMenu(world.skills[2].id);
    time.settle();
    EXPECT_EQ(capsule.menuSkillId(), world.skills[2].id);
    EXPECT_EQ(capsule.collapseSuspendCount(), 1);
    EXPECT_TRUE(stage.hasKeyboard);
}

TEST_F(NotchCapsuleEditingTest, TheEditorHoldsTheCapsuleOpenThroughout) {
    capsule.openMenu(design);
    capsule.chipRequestsRename();
    time.settle();
    ASSERT_TRUE(capsule.editor()->isShown());
    EXPECT_TRUE(capsule.editor()->hasName() && !capsule.editor()->hasColors());
    EXPECT_TRUE(capsule.menuSkillId().isEmpty());
    EXPECT_TRUE(stage.hasKeyboard);
    EXPECT_EQ(capsule.collapseSuspendCount(), 1);
    pointAway();
    time.advance(60);
    EXPECT_TRUE(capsule.isExpanded());
}

TEST_F(NotchCapsuleEditingTest, WithThePointerOutsideItCloses03SecondsAfterTheEditor) {
    capsule.chipRequestsAdd();
    pointAway();
    time.advance(5);
    capsule.editor()->close();
    EXPECT_FALSE(capsule.editor()->isShown());
    time.advance(0.29);
    EXPECT_TRUE(capsule.isExpanded());
    time.advance(0.02);
    EXPECT_FALSE(capsule.isExpanded());
}

TEST_F(NotchCapsuleEditingTest, WithThePointerInsideItStaysAfterTheEditor) {
    capsule.chipRequestsAdd();
    capsule.editor()->close();
    time.advance(5);
    EXPECT_TRUE(capsule.isExpanded());
    EXPECT_FALSE(stage.hasKeyboard);
}

TEST_F(NotchCapsuleEditingTest, ANewNameReachesTheModelAfterThePresentEvent) {
    capsule.openMenu(design);
    capsule.chipRequestsRename();
    capsule.editor()->setName(text("Sketching"));
    capsule.editor()->commit();
    EXPECT_FALSE(capsule.editor()->isShown());
    EXPECT_TRUE(world.calls.isEmpty());
    time.settle();
    EXPECT_EQ(world.calls, QStringList(text("update product_design Sketching bf5af2")));
}

TEST_F(NotchCapsuleEditingTest, ANewColourReachesTheModel) {
    capsule.openMenu(design);
    capsule.chipRequestsRecolor();
    capsule.editor()->chooseColor(3);
    capsule.editor()->commit();
    time.settle();
    EXPECT_EQ(world.calls, QStringList(text("update product_design Design 30d158")));
}

TEST_F(NotchCapsuleEditingTest, ANewSkillReachesTheModel) {
    capsule.chipRequestsAdd();
    EXPECT_TRUE(capsule.editor()->isAdding());
    EXPECT_GT(capsule.overlayAnchor().top(), 120);
    capsule.editor()->setName(text("Writing"));
    capsule.editor()->commit();
    time.settle();
    EXPECT_EQ(world.calls, QStringList(text("add Writing ff375f")));
}

TEST_F(NotchCapsuleEditingTest, TurningAwayChangesNothing) {
    capsule.chipRequestsAdd();
    capsule.editor()->setName(text("Writing"));
    capsule.dismissOverlay();
    time.settle();
    EXPECT_TRUE(world.calls.isEmpty());
    EXPECT_EQ(capsule.collapseSuspendCount(), 0);
}

TEST_F(NotchCapsuleEditingTest, DeletingReachesTheModelAfterThePresentEvent) {
    capsule.openMenu(design);
    capsule.chipRequestsDelete();
    EXPECT_TRUE(world.calls.isEmpty());
    time.settle();
    EXPECT_EQ(world.calls, QStringList(text("delete product_design")));
    EXPECT_EQ(capsule.collapseSuspendCount(), 0);
}

TEST_F(NotchCapsuleEditingTest, WhatHangsBelowFeelsThePointerToo) {
    capsule.chipRequestsAdd();
    capsule.setOverlayRect({100, 180, 284, 204});
    EXPECT_TRUE(capsule.inputRegion().contains(QPoint(110, 300)));
    capsule.setOverlayRect({});
    EXPECT_FALSE(capsule.inputRegion().contains(QPoint(110, 300)));
}

TEST_F(NotchCapsuleEditingTest, ACapsuleThatGoesClosesItsEditorWithoutAResult) {
    capsule.chipRequestsAdd();
    capsule.editor()->setName(text("Writing"));
    capsule.retire();
    time.settle();
    EXPECT_FALSE(capsule.editor()->isShown());
    EXPECT_FALSE(stage.hasKeyboard);
    EXPECT_TRUE(world.calls.isEmpty());
}

} // namespace
} // namespace vantle::tests
