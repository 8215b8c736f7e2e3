#include "surfaces/capsule/NotchStatusController.h"

#include "CapsuleWorld.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class NotchStatusControllerTest;

/// A panel without a window, which says when it goes.
class FakePanel final : public CapsulePanel {
public:
    FakePanel(std::unique_ptr<NotchCapsule> capsule, FakeStage& stage, int& up)
        : m_capsule(std::move(capsule))
        , m_up(up) {
        m_capsule->setStage(&stage);
        ++m_up;
    }
    ~FakePanel() override {
        m_capsule->setStage(nullptr);
        --m_up;
    }
    [[nodiscard]] NotchCapsule& capsule() override { return *m_capsule; }

private:
    std::unique_ptr<NotchCapsule> m_capsule;
    int& m_up;
};

class NotchStatusControllerTest : public testing::Test {
protected:
    void showIdle(bool flash = false) {
        auto form = world.idleForm();
        controller.showIdlePrompt(tracker, form.skill, form.skills, flash, form.onTap, form.onPick,
                                  *form.edit);
    }
    void showRunning(bool flash = false) {
        auto form = world.runningForm();
        controller.show(tracker, form.skill, form.skills, flash, form.onTap, form.onPick);
    }

    CapsuleWorld world;
    fakes::VirtualTime& time = world.tracking.time;
    TrackerCore& tracker = world.tracking.tracker;
    FakeStage stage;
    int raised = 0;
    int up = 0; ///< panels on the screen
    QRectF lastFrame;
    NotchStatusController controller{
        {time, world.tracking.preferences, world.reducedMotion, world.screens,
         [this](std::unique_ptr<NotchCapsule> capsule, const Placement& placement) {
             ++raised;
             lastFrame = placement.ground();
             return std::make_unique<FakePanel>(std::move(capsule), stage, up);
         }}};
};

TEST_F(NotchStatusControllerTest, TheIdleFormHangsAtTheTopCentre) {
    showIdle();
    ASSERT_NE(controller.capsule(), nullptr);
    EXPECT_TRUE(controller.capsule()->idlePrompt());
    EXPECT_FALSE(controller.capsule()->isExpanded());
    EXPECT_EQ(lastFrame, QRectF(451, 0, 538, 195));
}

TEST_F(NotchStatusControllerTest, EveryChangeOfFormBuildsAnotherCapsule) {
    showIdle();
    const QPointer first(controller.capsule());
    showRunning();
    EXPECT_EQ(raised, 2);
    EXPECT_EQ(up, 1);
    EXPECT_TRUE(first.isNull());
    EXPECT_FALSE(controller.capsule()->idlePrompt());
    EXPECT_FALSE(controller.capsule()->chipMayEdit());
}

TEST_F(NotchStatusControllerTest, ARunningFormFlashesForTwoSecondsAndAnIdleOneForLess) {
    showRunning(true);
    EXPECT_TRUE(controller.capsule()->isExpanded());
    time.advance(1.9);
    EXPECT_TRUE(controller.capsule()->isExpanded());
    time.advance(0.2);
    EXPECT_FALSE(controller.capsule()->isExpanded());
    showIdle(true);
    time.advance(1.5);
    EXPECT_TRUE(controller.capsule()->isExpanded());
    time.advance(0.2);
    EXPECT_FALSE(controller.capsule()->isExpanded());
}

TEST_F(NotchStatusControllerTest, FlashesOfLaterComeToTheCapsuleThatIsThere) {
    controller.flashSessionStart();
    controller.flashIdleCard();
    showRunning();
    controller.flashSessionStart();
    time.advance(1.9);
    EXPECT_TRUE(controller.capsule()->isExpanded());
    time.advance(0.2);
    EXPECT_FALSE(controller.capsule()->isExpanded());
    controller.flashIdleCard();
    time.advance(1.7);
    EXPECT_FALSE(controller.capsule()->isExpanded());
}

TEST_F(NotchStatusControllerTest, HidingLetsItFadeBeforeItGoes) {
    showRunning();
    controller.hide();
    EXPECT_EQ(controller.capsule(), nullptr);
    EXPECT_EQ(up, 1);
    time.advance(0.3);
    EXPECT_EQ(up, 0);
    controller.hide();
}

TEST_F(NotchStatusControllerTest, TheNextFormMayComeWhileTheLastOneFades) {
    showRunning();
    controller.hide();
    showIdle();
    EXPECT_EQ(up, 2);
    EXPECT_TRUE(controller.capsule()->idlePrompt());
    time.advance(0.3);
    EXPECT_EQ(up, 1);
}

TEST_F(NotchStatusControllerTest, WithReducedMotionHidingIsImmediate) {
    world.reducedMotion.isOn = true;
    showRunning();
    controller.hide();
    EXPECT_EQ(up, 0);
}

TEST_F(NotchStatusControllerTest, ABurstOfScreenChangesRebuildsOnceAndCollapsed) {
    showIdle();
    controller.flashIdleCard();
    for (int i = 0; i < 5; ++i) {
        world.screens.arrange({{.frame = QRectF(0, 0, 800 + i, 600), .available = QRectF()}});
        time.advance(0.3);
    }
    EXPECT_EQ(raised, 1);
    world.screens.arrange({{.frame = QRectF(0, 0, 1024, 768), .available = QRectF()}});
    time.advance(0.69);
    EXPECT_EQ(raised, 1);
    time.advance(0.02);
    EXPECT_EQ(raised, 2);
    EXPECT_EQ(up, 1);
    EXPECT_EQ(lastFrame.center().x(), 512);
    EXPECT_FALSE(controller.capsule()->isExpanded());
    time.advance(10);
    EXPECT_EQ(raised, 2);
}

TEST_F(NotchStatusControllerTest, AScreenChangeKeepsTheSkillOfTheLastRetag) {
    showRunning();
    controller.retag(world.skills[3], false);
    world.screens.arrange(world.screens.shapes);
    time.advance(0.8);
    EXPECT_EQ(raised, 2);
    EXPECT_EQ(controller.capsule()->skill(), world.skills[3]);
}

TEST_F(NotchStatusControllerTest, ScreenChangesWithNothingOnShowDoNothing) {
    world.screens.arrange(world.screens.shapes);
    time.advance(1);
    EXPECT_EQ(raised, 0);
    showRunning();
    world.screens.arrange(world.screens.shapes);
    controller.hide();
    time.advance(1);
    EXPECT_EQ(raised, 1);
}

TEST_F(NotchStatusControllerTest, WithoutAScreenNothingIsShown) {
    world.screens.shapes.clear();
    showIdle(true);
    EXPECT_EQ(raised, 0);
    EXPECT_EQ(controller.capsule(), nullptr);
    controller.retag(world.skills[1], true);
    controller.hide();
}

TEST_F(NotchStatusControllerTest, ANotchedDisplayGetsTheCapsuleThoughAnotherIsTheMainOne) {
    ScreenShape notched{.frame = QRectF(1440, 0, 1512, 982), .available = QRectF()};
    notched.safeAreaTop = 32;
    notched.auxiliaryTopLeft = QRectF(1440, 0, 664, 32);
    notched.auxiliaryTopRight = QRectF(2288, 0, 664, 32);
    world.screens.shapes.push_back(notched);
    showIdle();
    EXPECT_TRUE(controller.capsule()->hasNotch());
    EXPECT_EQ(lastFrame.center().x(), 2196);
}

} // namespace
} // namespace vantle::tests
