#include "surfaces/menubar/StatusItemController.h"

#include "fakes/FakeReducedMotion.h"
#include "fakes/FakeScreenPower.h"
#include "fakes/FakeTrayItem.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "surfaces/menubar/MenuBarDrawing.h"
#include "tracking/AppPaths.h"
#include "tracking/NotificationCenter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace vantle {
namespace {

constexpr double kPulse = StatusItemController::pulseInterval;

class StatusItemControllerTest : public testing::Test {
protected:
    StatusItemControllerTest() { time.attach(ioQueue); }

    void makeController() {
        controller = std::make_unique<StatusItemController>(
            StatusItemController::Environment{tracker, skills, item, time, reducedMotion, screens});
    }

    void makeSettledController() {
        makeController();
        time.settle();
    }

    /// A session of the second skill, with everything that it sets off done.
    void startSession() {
        tracker.start(designSkill(), 0);
        time.settle();
    }

    Skill designSkill() { return skills.all().at(1); }

    [[nodiscard]] QImage shown() const {
        return item.icon.pixmap(QSize(36, 36), 1.0)
            .toImage()
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }

    [[nodiscard]] bool pulses() const { return time.repeatingTimers(kPulse) == 1; }

    void expectWall() {
        EXPECT_EQ(shown(), menubar::drawBrick(36));
        EXPECT_TRUE(item.iconIsTemplate);
        EXPECT_FALSE(pulses());
    }

    void expectDot(const Skill& skill, int phase, bool paused) {
        EXPECT_EQ(shown(), menubar::drawStatusDot(36, skill.hexRGB, phase, paused));
        EXPECT_FALSE(item.iconIsTemplate);
    }

    void expectStillDot(const Skill& skill, int phase, bool paused) {
        expectDot(skill, phase, paused);
        EXPECT_FALSE(pulses());
    }

    fakes::VirtualTime time;
    fakes::ManualQueue ioQueue;
    fakes::MemoryFileSystem fileSystem;
    fakes::MemoryPreferences preferences;
    fakes::FakeReducedMotion reducedMotion;
    fakes::FakeScreenPower screens;
    fakes::FakeTrayItem item;
    NotificationCenter notifications;
    AppPaths paths{fileSystem, QStringLiteral("/home/ada/.local/share")};
    SkillList skills{paths, ioQueue, preferences};
    TrackerCore tracker{
        TrackerCore::Environment{time, time, ioQueue, paths, preferences, skills, notifications}};
    std::unique_ptr<StatusItemController> controller;
};

TEST_F(StatusItemControllerTest, ShowsTheWallAndItsNameAtOnce) {
    makeController();
    expectWall();
    EXPECT_EQ(item.toolTip, QStringLiteral("Vantle"));
    time.settle();
    expectWall();
}

TEST_F(StatusItemControllerTest, MenuSaysWhatAChoiceWouldDo) {
    const auto texts = [this](const char* toggle) {
        EXPECT_EQ(item.menuTexts(),
                  (QStringList{QStringLiteral("Open"), QString::fromLatin1(toggle),
                               QStringLiteral("Quit")}));
    };
    makeController();
    texts("Start");
    startSession();
    texts("Stop");
    tracker.pause(time.now());
    time.settle();
    texts("Stop");
    (void)tracker.stop();
    time.settle();
    texts("Start");
}

TEST_F(StatusItemControllerTest, SessionThatIsOpenAlreadyCanBeStoppedByTheMenuAtOnce) {
    tracker.start(designSkill(), 0);
    makeController();
    EXPECT_TRUE(item.menuTexts().contains(QStringLiteral("Stop")));
}

TEST_F(StatusItemControllerTest, MenuOfAnItemThatOutlivesTheControllerDoesNothing) {
    makeController();
    controller->onQuit = [] { FAIL(); };
    controller.reset();
    EXPECT_TRUE(item.choose(QStringLiteral("Quit")));
}

TEST_F(StatusItemControllerTest, BreathesFromTheStartOfASession) {
    makeSettledController();
    startSession();
    EXPECT_TRUE(pulses());
    expectDot(designSkill(), 1, false);
    for (const int phase : {2, 3, 4, 5, 6, 7, 0, 1}) {
        time.advance(kPulse);
        expectDot(designSkill(), phase, false);
    }
}

TEST_F(StatusItemControllerTest, ImageIsThatOfTheBarsGround) {
    makeSettledController();
    startSession();
    tracker.pause(time.now());
    time.settle();
    const std::uint32_t color = designSkill().hexRGB;
    expectDot(designSkill(), 0, true);
    item.setOnLightGround(true);
    EXPECT_EQ(shown(), menubar::drawStatusDot(36, color, 0, true, true)) << "at once";
    item.setOnLightGround(false);
    expectDot(designSkill(), 0, true);
}

TEST_F(StatusItemControllerTest, ImageStandsOnAPlateWhileThePanelIsOpen) {
    makeSettledController();
    const auto expectImage = [&](const QImage& image) {
        EXPECT_EQ(shown(), menubar::onPlate(image));
        controller->setPanelOpen(false);
        EXPECT_EQ(shown(), image) << "at once";
        controller->setPanelOpen(true);
    };
    controller->setPanelOpen(true);
    EXPECT_TRUE(item.iconIsTemplate);
    expectImage(menubar::drawBrick(36));

    startSession();
    time.advance(kPulse);
    EXPECT_TRUE(pulses());
    expectImage(menubar::drawStatusDot(36, designSkill().hexRGB, 2, false));
    time.advance(kPulse);
    expectImage(menubar::drawStatusDot(36, designSkill().hexRGB, 3, false));

    tracker.pause(time.now());
    time.settle();
    expectImage(menubar::drawStatusDot(36, designSkill().hexRGB, 0, true));
}

TEST_F(StatusItemControllerTest, FindsASessionThatIsOpenAlready) {
    tracker.start(designSkill(), 0);
    makeController();
    expectWall();
    time.settle();
    EXPECT_TRUE(pulses());
    expectDot(designSkill(), 1, false);
}

TEST_F(StatusItemControllerTest, AppliesStateAndSkillOnceForBoth) {
    makeSettledController();
    const int before = item.imagesSet;
    tracker.start(designSkill(), 0);
    EXPECT_EQ(item.imagesSet, before) << "nothing before the present work is over";
    time.settle();
    EXPECT_EQ(item.imagesSet, before + 1);
}

TEST_F(StatusItemControllerTest, ShowsWhatTheSessionEndsUpAsAfterSeveralChanges) {
    makeSettledController();
    const int before = item.imagesSet;
    tracker.start(designSkill(), 0);
    tracker.pause(time.now());
    time.settle();
    EXPECT_EQ(item.imagesSet, before + 1);
    expectStillDot(designSkill(), 0, true);
}

TEST_F(StatusItemControllerTest, GoesOnBreathingWhereItWasWhenTheSkillChanges) {
    makeSettledController();
    startSession();
    time.advance(kPulse);
    tracker.stop();
    tracker.start(skills.all().at(3), 0);
    time.settle();
    EXPECT_TRUE(pulses());
    time.advance(kPulse);
    expectDot(skills.all().at(3), 3, false);
}

TEST_F(StatusItemControllerTest, ShowsTheSamePausedDotWhereverTheBreathWas) {
    makeSettledController();
    startSession();
    for (int round = 0; round < menubar::kPhases; ++round) {
        time.advance(kPulse);
        tracker.pause(time.now());
        time.settle();
        expectStillDot(designSkill(), 0, true);
        tracker.resume();
        time.settle();
        EXPECT_TRUE(pulses());
    }
}

TEST_F(StatusItemControllerTest, ReturnsToTheWallWhenTheSessionEnds) {
    makeSettledController();
    startSession();
    time.advance(5);
    tracker.stop();
    time.settle();
    expectWall();
    const int before = item.imagesSet;
    time.advance(60);
    EXPECT_EQ(item.imagesSet, before);
}

TEST_F(StatusItemControllerTest, TakesTheFirstSkillsColourForAnUnknownSkill) {
    makeSettledController();
    tracker.start(Skill{QStringLiteral("gone"), QStringLiteral("Gone"), 0x123456, false}, 0);
    time.settle();
    expectDot(skills.all().front(), 1, false);
}

TEST_F(StatusItemControllerTest, TakesTheFirstSkillsColourWhileARunningSessionHasNoSkill) {
    makeSettledController();
    startSession();
    // The skill goes before the state does, and the screens go to sleep in just that moment.
    int sleeps = 0;
    QObject::connect(&tracker, &TrackerCore::currentSkillIdChanged, &tracker, [&] {
        ASSERT_EQ(tracker.state(), TrackerCore::State::Running);
        ASSERT_EQ(tracker.currentSkillId(), std::nullopt);
        screens.sleep();
        expectStillDot(skills.all().front(), 2, false);
        ++sleeps;
    });
    tracker.stop();
    EXPECT_EQ(sleeps, 1);
    time.settle();
    expectWall();
}

TEST_F(StatusItemControllerTest, HoldsStillUnderReducedMotion) {
    reducedMotion.isOn = true;
    makeSettledController();
    startSession();
    expectStillDot(designSkill(), 2, false);
}

TEST_F(StatusItemControllerTest, HeedsReducedMotionAtTheNextNewsAndNotBefore) {
    makeSettledController();
    startSession();
    reducedMotion.isOn = true;
    time.advance(10);
    EXPECT_TRUE(pulses());
    tracker.pause(time.now());
    time.settle();
    tracker.resume();
    time.settle();
    expectStillDot(designSkill(), 2, false);
    reducedMotion.isOn = false;
    time.advance(10);
    EXPECT_FALSE(pulses());
    screens.sleep();
    screens.wake();
    EXPECT_TRUE(pulses());
}

TEST_F(StatusItemControllerTest, HoldsStillWhileTheScreensSleep) {
    makeSettledController();
    startSession();
    time.advance(5 * kPulse);
    screens.sleep();
    expectStillDot(designSkill(), 2, false);
    const int before = item.imagesSet;
    time.advance(3600);
    EXPECT_EQ(item.imagesSet, before);
    screens.wake();
    EXPECT_TRUE(pulses());
    expectDot(designSkill(), 7, false);
}

TEST_F(StatusItemControllerTest, StartsToBreatheWhenTheScreensWakeOnARunningSession) {
    screens.beAsleep();
    makeSettledController();
    startSession();
    expectStillDot(designSkill(), 2, false);
    screens.wake();
    EXPECT_TRUE(pulses());
    expectDot(designSkill(), 1, false);
}

TEST_F(StatusItemControllerTest, HoldsStillWhileNoTrayShowsTheItem) {
    makeSettledController();
    item.setShown(false);
    startSession();
    expectStillDot(designSkill(), 2, false);
    item.setShown(true);
    EXPECT_TRUE(pulses());
    item.setShown(false);
    EXPECT_FALSE(pulses());
}

TEST_F(StatusItemControllerTest, DoesNotBreatheTwiceAtOnce) {
    makeSettledController();
    startSession();
    const int before = item.imagesSet;
    screens.wake();
    screens.wake();
    EXPECT_TRUE(pulses());
    EXPECT_EQ(item.imagesSet, before);
}

TEST_F(StatusItemControllerTest, ShowsTheColourThatTheSkillHasNow) {
    makeSettledController();
    startSession();
    ASSERT_TRUE(skills.update(designSkill().id, designSkill().name, 0x30D158));
    time.advance(kPulse);
    EXPECT_EQ(designSkill().hexRGB, 0x30D158U);
    expectDot(designSkill(), 2, false);
}

TEST_F(StatusItemControllerTest, PutsTheStatusUnderTheName) {
    makeSettledController();
    controller->setStatusText(QStringLiteral("Logged 25 min."));
    EXPECT_EQ(item.toolTip, QStringLiteral("Vantle\nLogged 25 min."));
    controller->setStatusText({});
    EXPECT_EQ(item.toolTip, QStringLiteral("Vantle"));
}

TEST_F(StatusItemControllerTest, PassesEachClickOnWithItsPlace) {
    makeSettledController();
    item.click({1, 2});
    QList<QPoint> places;
    controller->onClick = [&](QPoint place) { places << place; };
    item.click({1410, 12});
    item.click({0, 0});
    EXPECT_EQ(places, (QList<QPoint>{{1410, 12}, {0, 0}}));
}

TEST_F(StatusItemControllerTest, TellsWhereTheItemIs) {
    item.place = QRect(1417, 1, 22, 24);
    makeController();
    EXPECT_EQ(controller->geometry(), QRect(1417, 1, 22, 24));
}

TEST_F(StatusItemControllerTest, LeavesNothingBehind) {
    makeSettledController();
    startSession();
    const std::size_t timers = time.timerCount();
    controller.reset();
    EXPECT_EQ(time.timerCount(), timers - 1);
    const int before = item.imagesSet;
    screens.wake();
    tracker.pause(time.now());
    time.settle();
    EXPECT_EQ(item.imagesSet, before);
}

TEST_F(StatusItemControllerTest, ForgetsAnUpdateThatWasOnItsWay) {
    makeSettledController();
    tracker.start(designSkill(), 0);
    controller.reset();
    const int before = item.imagesSet;
    time.settle();
    EXPECT_EQ(item.imagesSet, before);
}

} // namespace
} // namespace vantle
