#include "surfaces/capsule/NotchCapsule.h"

#include "CapsuleWorld.h"
#include "support/QtPrinters.h"
#include "support/Text.h"
#include "tracking/DurationStyle.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class NotchCapsuleTest : public testing::Test {
protected:
    NotchCapsule& make(NotchCapsule::Form form) {
        capsule = std::make_unique<NotchCapsule>(world.environment(), std::move(form),
                                                 world.screens.shapes.front());
        capsule->setStage(&stage);
        return *capsule;
    }
    void startSession() {
        ASSERT_TRUE(tracker.start(world.skills[0], 0));
        time.settle();
    }
    void enter() {
        stage.pointer = {269, 5};
        capsule->setHovered(true);
    }
    void leave() {
        stage.pointer = {-1000, -1000};
        capsule->setHovered(false);
    }

    CapsuleWorld world;
    fakes::VirtualTime& time = world.tracking.time;
    TrackerCore& tracker = world.tracking.tracker;
    FakeStage stage;
    std::unique_ptr<NotchCapsule> capsule;
};

TEST_F(NotchCapsuleTest, AtRestOnAPlainScreenOnlyTheStripFeelsThePointer) {
    make(world.idleForm());
    EXPECT_EQ(capsule->frame(), QRectF(170, 0, 198, 0.5));
    EXPECT_TRUE(capsule->inputRegion().isEmpty());
    EXPECT_EQ(capsule->freeStrip(), QRect(154, 0, 230, 10));
    enter();
    EXPECT_TRUE(capsule->freeStrip().isEmpty());
}

TEST_F(NotchCapsuleTest, BelowABarTheStripStaysFreeAndChipsAndEditorMoveDown) {
    make(world.idleForm());
    enter();
    capsule->openMenu(world.skills[1].id);
    const QRectF chip = capsule->overlayAnchor();
    world.setTopBar(26);
    make(world.idleForm());
    enter();
    EXPECT_EQ(capsule->openFrame().top(), 26);
    EXPECT_EQ(capsule->freeStrip(), QRect(154, 0, 230, 10));
    EXPECT_EQ(capsule->inputRegion(), QRegion(capsule->openFrame().toRect()));
    capsule->openMenu(world.skills[1].id);
    EXPECT_EQ(capsule->overlayAnchor(), chip.translated(0, 26));
}

TEST_F(NotchCapsuleTest, OpenItFeelsThePointerAsAWholeAndTellsTheWindow) {
    make(world.idleForm());
    const int before = stage.follows;
    enter();
    EXPECT_GT(stage.follows, before);
    EXPECT_EQ(capsule->frame(), capsule->openFrame());
    EXPECT_EQ(capsule->inputRegion(), QRegion(capsule->openFrame().toRect()));
    EXPECT_EQ(capsule->openFrame().height(), 171);
}

TEST_F(NotchCapsuleTest, TheIdleFormInvitesToStart) {
    make(world.idleForm());
    EXPECT_EQ(capsule->clock(), text("Start vantle"));
    EXPECT_EQ(capsule->skillLine(), text("BUILD"));
    EXPECT_EQ(capsule->toolTip(), text("Click a skill to start vantle"));
    EXPECT_TRUE(capsule->showAddRow());
    enter();
    time.advance(10);
    EXPECT_EQ(capsule->clock(), text("Start vantle"));
    EXPECT_EQ(time.repeatingTimers(1.0), 0U);
}

TEST_F(NotchCapsuleTest, EightSkillsLeaveNoRoomForAnother) {
    auto form = world.idleForm();
    while (form.skills.size() < Skill::maxCount)
        form.skills.push_back({text("more"), text("More"), 0xFFFFFF, false});
    EXPECT_FALSE(make(std::move(form)).showAddRow());
}

TEST_F(NotchCapsuleTest, TheRunningFormHasNoAddRowAndNoMenu) {
    startSession();
    make(world.runningForm());
    EXPECT_FALSE(capsule->showAddRow());
    EXPECT_EQ(capsule->toolTip(), text("Click a skill to switch. Click anywhere else to stop."));
    enter();
    capsule->openMenu(world.skills[1].id);
    EXPECT_TRUE(capsule->menuSkillId().isEmpty());
    EXPECT_EQ(capsule->collapseSuspendCount(), 0);
}

TEST_F(NotchCapsuleTest, WithoutSkillsThereIsOnlyTheRow) {
    startSession();
    auto form = world.runningForm();
    form.skills.clear();
    make(std::move(form));
    EXPECT_EQ(capsule->toolTip(), text("Click to end the session"));
    EXPECT_EQ(capsule->openFrame().height(), 58);
    EXPECT_EQ(capsule->openFrame().width(), 340);
    EXPECT_EQ(capsule->rowViewHeight(), 58);
}

TEST_F(NotchCapsuleTest, TheClockRunsWhileItCanBeSeen) {
    startSession();
    make(world.runningForm());
    enter();
    time.advance(72);
    EXPECT_EQ(capsule->clock(), text("1 min"));
    EXPECT_EQ(time.repeatingTimers(1.0), 2U); // the tracker's and the capsule's
    leave();
    time.advance(1);
    EXPECT_EQ(time.repeatingTimers(1.0), 1U);
    time.advance(120);
    enter();
    EXPECT_EQ(capsule->clock(), text("3 min"));
}

TEST_F(NotchCapsuleTest, TheClockFollowsTheUsersWayOfWritingDurations) {
    world.tracking.preferences.setString(settings::durationStyle.key(), text("clock"));
    startSession();
    make(world.runningForm());
    enter();
    time.advance(65);
    EXPECT_EQ(capsule->clock(), text("1:05"));
}

TEST_F(NotchCapsuleTest, TheClockNeverShowsANegativeNumber) {
    world.tracking.preferences.setString(settings::durationStyle.key(), text("clock"));
    startSession();
    make(world.runningForm());
    time.shiftWall(-7200);
    enter();
    time.advance(2);
    EXPECT_FALSE(capsule->clock().contains(QLatin1Char('-')));
    EXPECT_TRUE(capsule->clock().startsWith(text("0:0")));
}

TEST_F(NotchCapsuleTest, APauseIsWrittenBesideTheSkillAndFreezesTheClock) {
    startSession();
    make(world.runningForm());
    enter();
    time.advance(120);
    tracker.pause(time.now());
    time.settle();
    EXPECT_TRUE(capsule->showsPaused());
    EXPECT_EQ(capsule->skillLine(), text("BUILD  ·  PAUSED"));
    time.advance(600);
    EXPECT_EQ(capsule->clock(), text("2 min"));
    tracker.resume();
    time.settle();
    EXPECT_FALSE(capsule->showsPaused());
    EXPECT_EQ(capsule->skillLine(), text("BUILD"));
}

TEST_F(NotchCapsuleTest, ASessionThatEndsLeavesTheLabelAsItWas) {
    startSession();
    make(world.runningForm());
    enter();
    time.advance(120);
    const QString before = capsule->clock();
    (void)tracker.stop();
    time.settle();
    EXPECT_EQ(capsule->clock(), before);
}

TEST_F(NotchCapsuleTest, ClicksCountOnTheOpenCapsuleOnly) {
    make(world.idleForm());
    capsule->click();
    capsule->pickSkill(text("design"));
    EXPECT_TRUE(world.calls.isEmpty());
    enter();
    capsule->click();
    capsule->pickSkill(text("design"));
    EXPECT_EQ(world.calls, QStringList({text("tap"), text("pick design")}));
}

TEST_F(NotchCapsuleTest, AChangeOfSkillRecoloursTheDotAndMovesTheHighlight) {
    startSession();
    make(world.runningForm());
    capsule->retag(world.skills[1], false);
    EXPECT_FALSE(capsule->isExpanded());
    EXPECT_EQ(capsule->tint(), QColor::fromRgb(world.skills[1].hexRGB));
    EXPECT_EQ(capsule->skillLine(), text("DESIGN"));
    const auto highlighted = [&](int row) {
        return capsule->chips()
            ->data(capsule->chips()->index(row), SkillListModel::Selected)
            .toBool();
    };
    EXPECT_FALSE(highlighted(0));
    EXPECT_TRUE(highlighted(1));
}

TEST_F(NotchCapsuleTest, OpenedAfterAChangeOfSkillItIsAsWideAsItsWords) {
    startSession();
    tracker.pause(time.now());
    time.settle();
    NotchCapsule::Form form = world.runningForm();
    form.skills.resize(2); // more chips are wider than any name
    Skill wide = form.skills[1];
    wide.name = text("WWWWWWWWWWWWWWWWWWWW");
    make(form);
    capsule->retag(wide, false);
    enter();
    const double width = capsule->openFrame().width();
    form.skill = wide;
    make(form);
    EXPECT_EQ(capsule->openFrame().width(), width);
    form.skill = form.skills[0];
    make(form);
    EXPECT_LT(capsule->openFrame().width(), width);
}

TEST_F(NotchCapsuleTest, AChangeOfSkillWithAFlashOpensItForAMoment) {
    startSession();
    make(world.runningForm());
    capsule->retag(world.skills[1], true);
    EXPECT_TRUE(capsule->isExpanded());
    time.advance(1.5);
    EXPECT_TRUE(capsule->isExpanded());
    time.advance(0.2);
    EXPECT_FALSE(capsule->isExpanded());
}

TEST_F(NotchCapsuleTest, FadingOutItClosesIgnoresInputAndIsGoneIn028Seconds) {
    make(world.idleForm());
    enter();
    bool gone = false;
    capsule->animateOut([&] { gone = true; });
    EXPECT_FALSE(capsule->isExpanded());
    EXPECT_TRUE(capsule->isLeaving());
    EXPECT_TRUE(capsule->inputRegion().isEmpty());
    capsule->setHovered(true);
    capsule->click();
    EXPECT_FALSE(capsule->isExpanded());
    EXPECT_TRUE(world.calls.isEmpty());
    time.advance(0.27);
    EXPECT_FALSE(gone);
    time.advance(0.02);
    EXPECT_TRUE(gone);
}

TEST_F(NotchCapsuleTest, WithReducedMotionItIsGoneAtOnce) {
    world.reducedMotion.isOn = true;
    make(world.idleForm());
    bool gone = false;
    capsule->animateOut([&] { gone = true; });
    EXPECT_TRUE(gone);
    EXPECT_EQ(time.timerCount(), 0U);
}

TEST_F(NotchCapsuleTest, AFlashThatIsStillPlannedDoesNotOutliveIt) {
    make(world.idleForm());
    capsule->beginSessionFlash(Seconds(2));
    capsule.reset();
    EXPECT_EQ(time.timerCount(), 0U);
    time.advance(5);
}

} // namespace
} // namespace vantle::tests
