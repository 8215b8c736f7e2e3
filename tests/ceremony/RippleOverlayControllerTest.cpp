#include "ceremony/RippleOverlayController.h"

#include "ceremony/CeremonyWorld.h"
#include "fakes/VirtualTime.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

#include <set>

namespace vantle::tests {
namespace {

using Kind = ShownWindow::Kind;

constexpr std::uint32_t kColor = 0x7A78FF;

class RippleOverlayControllerTest : public testing::Test {
protected:
    RippleOverlayControllerTest() { time.attach(queue); }

    void play(CeremonyShow show) { controller.play(show, kColor, QStringLiteral("Writing")); }
    /// As `play`, with the native show ready at once.
    void playReady(CeremonyShow show) {
        play(show);
        time.settle();
    }
    void switchOff() { settings::rippleDisabled.write(world.preferences, true); }
    [[nodiscard]] QList<Kind> kinds() const {
        QList<Kind> kinds;
        for (const ShownWindow& window : world.windows.all())
            kinds << window.kind;
        return kinds;
    }

    fakes::VirtualTime time{dateFromEpoch(1000)};
    fakes::ManualQueue queue;
    CeremonyWorld world{time, time, queue};
    RippleOverlayController& controller = world.controller;
};

TEST_F(RippleOverlayControllerTest, AFullShowStandsOverEveryScreenFromItsStart) {
    playReady(CeremonyShow::Full);
    const QList<ShownWindow> windows = world.windows.all();
    ASSERT_EQ(kinds(), (QList{Kind::Native, Kind::Native}));
    EXPECT_EQ(windows[0].frame, QRect(0, 0, 1440, 900));
    EXPECT_EQ(windows[1].frame, QRect(1440, 0, 1920, 1080));
    EXPECT_EQ(windows[0].start, dateFromEpoch(1000));
}

TEST_F(RippleOverlayControllerTest, TimeSpentInPreparationIsLostFromTheHeadOfTheShow) {
    play(CeremonyShow::Full);
    EXPECT_EQ(world.windows.count(), 0);
    time.shiftWall(0.25);
    time.settle();
    EXPECT_EQ(world.windows.all().front().start, dateFromEpoch(1000));
}

TEST_F(RippleOverlayControllerTest, SwitchedOffNothingHappensAndARunningShowIsNotCut) {
    switchOff();
    play(CeremonyShow::Full);
    EXPECT_EQ(controller.generation(), 0);
    EXPECT_FALSE(controller.isHardStopPending());
    EXPECT_EQ(controller.lastVariantIndex(), -1);

    settings::rippleDisabled.write(world.preferences, false);
    playReady(CeremonyShow::Full);
    switchOff();
    play(CeremonyShow::Collapse);
    EXPECT_EQ(controller.generation(), 1);
    EXPECT_EQ(kinds(), (QList{Kind::Native, Kind::Native}));
}

TEST_F(RippleOverlayControllerTest, ASecondPlayCutsTheFirstWhichIsDroppedWhenItArrives) {
    play(CeremonyShow::Full);
    time.advance(0.5);
    ASSERT_EQ(world.windows.count(), 2);
    play(CeremonyShow::Full);
    EXPECT_EQ(world.windows.count(), 0) << "they go at once";
    play(CeremonyShow::Full);
    time.settle();
    EXPECT_EQ(world.windows.count(), 2) << "only those of the last show";
    time.advance(3.1);
    EXPECT_EQ(world.windows.count(), 2) << "the first hard stop is cancelled";
    time.advance(0.1);
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(RippleOverlayControllerTest, ReducedMotionTurnsStartAndEndIntoTheFadeAndPicksNothing) {
    world.reducedMotion.isOn = true;
    for (const CeremonyShow show : {CeremonyShow::Full, CeremonyShow::Quick, CeremonyShow::Collapse,
                                    CeremonyShow::Milestone}) {
        playReady(show);
        EXPECT_EQ(kinds(), (QList{Kind::Fade, Kind::Fade}));
        time.advance(1.14);
        EXPECT_EQ(world.windows.count(), 2);
        time.advance(0.02);
        EXPECT_EQ(world.windows.count(), 0);
    }
    EXPECT_EQ(controller.lastVariantIndex(), -1);
}

TEST_F(RippleOverlayControllerTest, ReducedMotionEndsAShowThatPlays) {
    playReady(CeremonyShow::Full);
    time.advance(0.5);
    ASSERT_EQ(world.windows.count(), 2);
    world.reducedMotion.set(true);
    EXPECT_EQ(world.windows.count(), 0);
    world.reducedMotion.set(false);
    time.advance(0.5);
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(RippleOverlayControllerTest, NothingPlaysWhereAWindowWouldSwallowThePresses) {
    world.stage.available = false;
    for (const CeremonyShow show : {CeremonyShow::Full, CeremonyShow::Collapse}) {
        playReady(show);
        EXPECT_EQ(world.windows.count(), 0);
    }
    world.reducedMotion.isOn = true;
    playReady(CeremonyShow::Full);
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(RippleOverlayControllerTest, AllFiveScriptsArePossibleTheFirstTime) {
    std::set<int> picked;
    for (int i = 0; i < 5; ++i)
        picked.insert(RippleOverlayController::pickIndex(-1, i / 5.0));
    EXPECT_EQ(picked, (std::set{0, 1, 2, 3, 4}));
    EXPECT_EQ(RippleOverlayController::pickIndex(-1, std::nextafter(1.0, 0.0)), 4);
}

TEST_F(RippleOverlayControllerTest, TheSameScriptNeverPlaysTwiceInARow) {
    for (int last = 0; last < 5; ++last) {
        std::set<int> picked;
        for (int i = 0; i < 4; ++i)
            picked.insert(RippleOverlayController::pickIndex(last, i / 4.0));
        EXPECT_EQ(picked.size(), 4u);
        EXPECT_FALSE(picked.contains(last));
    }
}

TEST_F(RippleOverlayControllerTest, AnEndRightAfterAStartReplacesTheShowByTheRing) {
    playReady(CeremonyShow::Full);
    play(CeremonyShow::Collapse);
    EXPECT_EQ(kinds(), (QList{Kind::Collapse, Kind::Collapse}));
    time.advance(0.86);
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(RippleOverlayControllerTest, AnEndDuringPreparationIsNotOverlaidByTheLateShow) {
    play(CeremonyShow::Full);
    play(CeremonyShow::Collapse);
    time.settle();
    EXPECT_EQ(kinds(), (QList{Kind::Collapse, Kind::Collapse}));
}

TEST_F(RippleOverlayControllerTest, AQuickStartWithoutAPageArmsAStopThatFindsNothing) {
    playReady(CeremonyShow::Quick);
    EXPECT_EQ(world.windows.count(), 0);
    EXPECT_TRUE(controller.isHardStopPending());
    EXPECT_EQ(controller.hardStopCeiling(), Seconds(1.5));
    time.advance(1.5);
    EXPECT_FALSE(controller.isHardStopPending());
}

TEST_F(RippleOverlayControllerTest, TheRingOfAnEarlierShowDoesNotCutTheNext) {
    play(CeremonyShow::Collapse);
    time.advance(0.7);
    playReady(CeremonyShow::Full);
    time.advance(0.5); // past the end of the ring's windows
    EXPECT_EQ(kinds(), (QList{Kind::Native, Kind::Native}));
}

TEST_F(RippleOverlayControllerTest, AScreenUnpluggedDuringPreparationIsLeftOut) {
    play(CeremonyShow::Full);
    world.screens.shapes.pop_back();
    time.settle();
    ASSERT_EQ(world.windows.count(), 1);
    EXPECT_EQ(world.windows.all().front().frame, QRect(0, 0, 1440, 900));
}

TEST_F(RippleOverlayControllerTest, AScreenPluggedInDuringPreparationIsLeftOut) {
    play(CeremonyShow::Full);
    world.screens.shapes.push_back({.frame = QRectF(0, -900, 800, 600), .available = QRectF()});
    time.settle();
    EXPECT_EQ(world.windows.count(), 2);
}

TEST_F(RippleOverlayControllerTest, ScreensThatMirrorEachOtherAreDimmedOnce) {
    world.screens.shapes.back() = world.screens.shapes.front();
    playReady(CeremonyShow::Full);
    EXPECT_EQ(world.windows.count(), 1);
}

TEST_F(RippleOverlayControllerTest, NoScreensGiveNoWindows) {
    world.screens.shapes.clear();
    for (const CeremonyShow show : {CeremonyShow::Full, CeremonyShow::Collapse}) {
        playReady(show);
        EXPECT_EQ(world.windows.count(), 0);
    }
    world.web.pageExists = true;
    playReady(CeremonyShow::Full);
    time.advance(4.0);
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(RippleOverlayControllerTest, DismissTakesAllDownAndDoesNothingTheSecondTime) {
    playReady(CeremonyShow::Full);
    controller.dismiss();
    EXPECT_EQ(world.windows.count(), 0);
    EXPECT_TRUE(controller.isHardStopPending());
    controller.dismiss();
    time.advance(3.2);
    EXPECT_FALSE(controller.isHardStopPending());
}

TEST_F(RippleOverlayControllerTest, AWallClockThatJumpsDoesNotKeepTheWindows) {
    playReady(CeremonyShow::Full);
    time.shiftWall(-3600);
    time.advance(3.2);
    EXPECT_EQ(world.windows.count(), 0);
}

TEST(RippleOverlayController, AControllerThatIsGoneIsNotReachedByWhatItStarted) {
    fakes::VirtualTime time;
    fakes::ManualQueue queue;
    {
        CeremonyWorld world{time, time, queue};
        world.controller.play(CeremonyShow::Full, kColor, std::nullopt);
        queue.runDry(); // the result is on its way
        world.controller.play(CeremonyShow::Collapse, kColor, std::nullopt);
    }
    time.settle();
    time.advance(10.0);
    EXPECT_EQ(time.timerCount(), 0u);
}

} // namespace
} // namespace vantle::tests
