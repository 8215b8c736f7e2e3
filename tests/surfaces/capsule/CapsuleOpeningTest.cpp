#include "surfaces/capsule/CapsuleOpening.h"

#include "fakes/VirtualTime.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class CapsuleOpeningTest : public testing::Test {
protected:
    void enter() {
        pointerInside = true;
        opening.pointerEntered();
    }
    void leave() {
        pointerInside = false;
        opening.pointerLeft();
    }
    /// For a pointer of which the window does not tell.
    void expectOpenUntilThePointerLeaves() {
        pointerInside = true;
        time.advance(5);
        EXPECT_TRUE(opening.isExpanded());
        pointerInside = false;
        time.advance(0.7);
        EXPECT_FALSE(opening.isExpanded());
    }

    fakes::VirtualTime time;
    bool pointerInside = false;
    int changes = 0;
    CapsuleOpening opening{{time, [this] { return pointerInside; }, [] {}, [this] { ++changes; }}};
};

TEST_F(CapsuleOpeningTest, ItRestsUntilThePointerComes) {
    EXPECT_FALSE(opening.isExpanded());
    enter();
    EXPECT_TRUE(opening.isExpanded());
    enter();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(time.timerCount(), 0U);
}

TEST_F(CapsuleOpeningTest, ItClosesHalfASecondAfterThePointerLeft) {
    enter();
    leave();
    time.advance(0.49);
    EXPECT_TRUE(opening.isExpanded());
    time.advance(0.02);
    EXPECT_FALSE(opening.isExpanded());
    EXPECT_EQ(changes, 2);
}

TEST_F(CapsuleOpeningTest, APointerThatReturnsWithinHalfASecondKeepsItOpen) {
    enter();
    leave();
    time.advance(0.4);
    enter();
    time.advance(5);
    EXPECT_TRUE(opening.isExpanded());
    EXPECT_EQ(changes, 1);
}

TEST_F(CapsuleOpeningTest, APointerThatIsBackUnnoticedKeepsItOpen) {
    enter();
    leave();
    pointerInside = true;
    time.advance(1);
    EXPECT_TRUE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, LeavingAgainRestartsTheHalfSecond) {
    enter();
    leave();
    time.advance(0.4);
    leave();
    time.advance(0.4);
    EXPECT_TRUE(opening.isExpanded());
    time.advance(0.2);
    EXPECT_FALSE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, AFlashOpensAndClosesByItself) {
    opening.beginSessionFlash(Seconds(2));
    EXPECT_TRUE(opening.isExpanded());
    time.advance(1.9);
    EXPECT_TRUE(opening.isExpanded());
    time.advance(0.2);
    EXPECT_FALSE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, AnotherFlashTakesThePlaceOfTheFirst) {
    opening.beginSessionFlash(Seconds(2));
    time.advance(1.5);
    opening.beginSessionFlash(Seconds(1.6));
    time.advance(1.5);
    EXPECT_TRUE(opening.isExpanded());
    time.advance(0.2);
    EXPECT_FALSE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, APointerOverItWhileAFlashEndsKeepsItOpenUntilItLeaves) {
    opening.beginSessionFlash(Seconds(2));
    enter();
    time.advance(3);
    EXPECT_TRUE(opening.isExpanded());
    leave();
    time.advance(0.6);
    EXPECT_FALSE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, APointerThatRestsBesideTheWindowHoldsItOpenUntilItHasLeft) {
    pointerInside = true;
    opening.pointerRested();
    time.advance(60);
    EXPECT_TRUE(opening.isExpanded());
    pointerInside = false;
    time.advance(0.49);
    EXPECT_TRUE(opening.isExpanded());
    time.advance(0.2); // 0.5 s after the next look, of which there are ten in a second
    EXPECT_FALSE(opening.isExpanded());
    EXPECT_EQ(time.timerCount(), 0U);
}

TEST_F(CapsuleOpeningTest, FromTheWindowOnOnlyTheWindowTellsWhereThePointerIs) {
    pointerInside = true;
    opening.pointerRested();
    enter();
    EXPECT_EQ(time.timerCount(), 0U);
    leave();
    time.advance(0.51);
    EXPECT_FALSE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, APointerThatWentFromTheWindowToBesideItHoldsItOpenUntilItHasLeft) {
    enter();
    leave();
    expectOpenUntilThePointerLeaves();
}

TEST_F(CapsuleOpeningTest, APointerBesideTheWindowWhileAFlashEndsKeepsItOpenUntilItLeaves) {
    opening.beginSessionFlash(Seconds(2));
    expectOpenUntilThePointerLeaves();
}

TEST_F(CapsuleOpeningTest, AFlashEndsSuspendedOrNot) {
    opening.beginSessionFlash(Seconds(2));
    opening.pushCollapseSuspend();
    time.advance(2.1);
    EXPECT_FALSE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, ASuspensionHoldsItOpenAndItsEndLetsItCloseSoon) {
    enter();
    leave();
    opening.pushCollapseSuspend();
    time.advance(5);
    EXPECT_TRUE(opening.isExpanded());
    opening.popCollapseSuspend();
    time.advance(0.29);
    EXPECT_TRUE(opening.isExpanded());
    time.advance(0.02);
    EXPECT_FALSE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, LeavingWhileSuspendedClosesNothing) {
    enter();
    opening.pushCollapseSuspend();
    leave();
    time.advance(5);
    EXPECT_TRUE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, WithThePointerInsideTheEndOfASuspensionClosesNothing) {
    enter();
    opening.pushCollapseSuspend();
    opening.popCollapseSuspend();
    time.advance(5);
    EXPECT_TRUE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, SuspensionsNest) {
    enter();
    opening.pushCollapseSuspend();
    opening.pushCollapseSuspend();
    pointerInside = false;
    opening.popCollapseSuspend();
    time.advance(5);
    EXPECT_TRUE(opening.isExpanded());
    EXPECT_EQ(opening.collapseSuspendCount(), 1);
    opening.popCollapseSuspend();
    time.advance(0.31);
    EXPECT_FALSE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, AnEndTooManyLeavesZero) {
    opening.popCollapseSuspend();
    opening.popCollapseSuspend();
    EXPECT_EQ(opening.collapseSuspendCount(), 0);
    enter();
    opening.pushCollapseSuspend();
    leave();
    time.advance(1);
    EXPECT_TRUE(opening.isExpanded());
}

TEST_F(CapsuleOpeningTest, GivenUpItPlansNothingMore) {
    opening.beginSessionFlash(Seconds(2));
    leave();
    opening.cancel();
    EXPECT_EQ(time.timerCount(), 0U);
    time.advance(5);
    EXPECT_TRUE(opening.isExpanded());
}

} // namespace
} // namespace vantle::tests
