// Sessions while the user cannot work: locked screens, suspended machines, a program
// that is stopped.
#include "app/ModelWorld.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using State = TrackerCore::State;

class AppModelAwayTest : public testing::Test {
protected:
    AppModel& launched() { return world.launch(); }

    ModelWorld world;
};

TEST_F(AppModelAwayTest, LockedScreenIsNotCountedHoweverShort) {
    AppModel& model = launched();
    world.press();
    world.time.advance(30.0);
    world.screens.sleep();
    world.time.advance(41.0);
    world.idleSource.touch(); // the password
    world.time.advance(4.0);
    world.screens.wake();
    EXPECT_EQ(model.tracker().state(), State::Running);
    world.time.advance(10.0);
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 40);
}

TEST_F(AppModelAwayTest, PressAfterAnAbsenceCountsFromThePress) {
    AppModel& model = launched();
    world.idleSource.touch();
    world.time.advance(175.0); // the next look would find three minutes without input
    world.idleSource.touch();
    world.press();
    world.time.advance(60.0);
    EXPECT_EQ(model.tracker().state(), State::Running);
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 60);
}

TEST_F(AppModelAwayTest, StartWithoutInputCountsNoneOfAnAbsence) {
    AppModel& model = launched();
    world.time.advance(400.0);
    model.toggleVantle(); // by a command of another program
    world.time.advance(8 * 3600.0);
    EXPECT_EQ(model.tracker().state(), State::Paused);
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 0);
    world.idleSource.touch();
    world.time.advance(10.0);
    EXPECT_EQ(model.tracker().state(), State::Running);
}

TEST_F(AppModelAwayTest, SkillChangedWithoutInputCountsNoneOfAnAbsence) {
    AppModel& model = launched();
    world.idleSource.touch();
    world.press();
    world.time.advance(400.0);
    ASSERT_EQ(model.tracker().state(), State::Paused);
    model.selectSkill(model.skills().back().id, AppModel::SkillSelectionOrigin::Human);
    world.time.advance(8 * 3600.0);
    EXPECT_EQ(model.tracker().state(), State::Paused);
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 0);
}

TEST_F(AppModelAwayTest, LockWithoutACounterEndsWithTheUnlock) {
    AppModel& model = launched();
    world.idleSource.becomeUnknown();
    world.press();
    world.time.advance(30.0);
    world.screens.sleep();
    world.time.advance(600.0);
    EXPECT_EQ(model.tracker().state(), State::Paused);
    world.screens.wake();
    EXPECT_EQ(model.tracker().state(), State::Running);
    world.time.advance(88.0);
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 118);
}

TEST_F(AppModelAwayTest, LockAfterWhichTheMachineSleepsIsOnePause) {
    AppModel& model = launched();
    world.press();
    world.time.advance(5.0);
    QStringList states;
    QObject::connect(&model.tracker(), &TrackerCore::stateChanged, &model, [&] {
        states << (model.tracker().state() == State::Paused ? text("paused") : text("running"));
    });
    world.screens.sleep();
    world.time.advance(12.0);
    world.time.suspend(8 * 3600.0);
    world.time.advance(12.0);
    world.idleSource.touch();
    world.time.advance(3.0);
    world.screens.wake();
    world.time.advance(2.0);
    EXPECT_EQ(states, (QStringList{text("paused"), text("running")}));
    EXPECT_EQ(model.tracker().welcomeBack(), text("welcome back, paused 480m"));
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 7);
}

TEST_F(AppModelAwayTest, PauseIsOnTheDiskBeforeTheMachineMaySleep) {
    launched();
    world.press();
    world.time.advance(130.0);
    world.screens.sleep(); // as soon as this returns the machine may sleep, and never wake
    world.kill();
    world.launch();
    EXPECT_TRUE(world.told.has(text("recovery 130")));
}

TEST_F(AppModelAwayTest, NightOfSuspensionDoesNotCountInEitherOrderOfEvents) {
    AppModel& model = launched();
    for (const bool inputFirst : {true, false}) {
        world.press();
        world.idleSource.touch();
        world.time.advance(65.0);
        world.time.suspend(8 * 3600.0);
        if (inputFirst) world.idleSource.touch();
        world.time.advance(15.0);
        EXPECT_EQ(model.tracker().state(), inputFirst ? State::Running : State::Paused);
        world.idleSource.touch();
        world.time.advance(20.0);
        EXPECT_EQ(model.tracker().state(), State::Running);
        const auto session = model.tracker().stop();
        ASSERT_TRUE(session);
        EXPECT_GE(session->activeSeconds, 75);
        EXPECT_LE(session->activeSeconds, 100);
    }
}

TEST_F(AppModelAwayTest, LockThatIsReadOnlyAfterTheProgramWasStoppedCountsNothingOfIt) {
    AppModel& model = launched();
    world.press();
    world.time.advance(5.0);
    world.time.freeze(60.0);
    world.screens.sleep();
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 5);
    world.screens.wake();
    world.time.advance(10.0);
    EXPECT_EQ(model.tracker().displayActiveSeconds(), 15);
}

} // namespace
} // namespace vantle::tests
