// When a capsule has a view.
#include "CapsuleWindowWorld.h"

#include <QGuiApplication>
#include <QPointer>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class CapsuleViewTest : public CapsuleWindowTest {};

TEST_F(CapsuleViewTest, ViewIsMadeWhenTheCapsuleOpensAndGoesSomeTimeAfterItHasClosed) {
    raiseClosed(world.idleForm());
    for (int round = 0; round < 2; ++round) {
        EXPECT_FALSE(window->hasView());
        EXPECT_TRUE(QGuiApplication::allWindows().isEmpty());
        window->capsule().expand();
        settle();
        ASSERT_TRUE(window->hasView());
        EXPECT_TRUE(window->panel().isVisible());
        EXPECT_TRUE(shows(text("Start vantle")));
        world.tracking.time.advance(10 * CapsuleWindow::viewKept.count());
        EXPECT_TRUE(window->hasView()) << "it is open";
        window->capsule().collapse();
        world.tracking.time.advance(CapsuleWindow::viewKept.count() - 1);
        EXPECT_TRUE(window->hasView());
        world.tracking.time.advance(1);
        settle();
    }
}

TEST_F(CapsuleViewTest, PointerThatRestsInTheStripOpensACapsuleWithoutAView) {
    raiseClosed(world.idleForm());
    ASSERT_FALSE(window->hasView());
    host.movePointer({720, 5});
    EXPECT_TRUE(window->capsule().isExpanded());
    ASSERT_TRUE(window->hasView());
    EXPECT_EQ(host.inputRegion, QRegion(window->capsule().openFrame().toRect()));
}

TEST_F(CapsuleViewTest, CapsuleThatOpensAgainKeepsItsView) {
    raiseIdle();
    const QPointer<QWindow> before = &window->panel();
    for (int round = 0; round < 3; ++round) {
        window->capsule().collapse();
        world.tracking.time.advance(CapsuleWindow::viewKept.count() - 1);
        window->capsule().expand();
    }
    EXPECT_EQ(&window->panel(), before);
}

TEST_F(CapsuleViewTest, WhereTheWindowItselfTakesThePointerItsViewStays) {
    host.senses = false;
    raiseClosed(world.idleForm());
    ASSERT_TRUE(window->hasView());
    EXPECT_TRUE(window->panel().isVisible());
    EXPECT_EQ(host.inputRegion, QRegion(154, 0, 230, 10));
    world.tracking.time.advance(10 * CapsuleWindow::viewKept.count());
    EXPECT_TRUE(window->hasView());
}

} // namespace
} // namespace vantle::tests
