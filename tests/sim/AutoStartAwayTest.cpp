// What the real auto mode starts while the user is away.
#include "sim/Life.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using State = TrackerCore::State;

/// A life with auto start on, in which the user has just opened an editor that auto mode knows.
class AutoStartAwayTest : public testing::Test {
protected:
    AutoStartAwayTest() {
        settings::autoStart.write(world.preferences, true);
        world.settle();
        openEditor();
    }
    void openEditor() {
        world.frontmost.activate(
            Application{QStringLiteral("com.microsoft.VSCode"), QStringLiteral("Code")});
        world.idleSource.touch();
    }
    [[nodiscard]] const TrackerCore& tracker() const { return world.model->tracker(); }

    Life life{1};
    ModelWorld& world = life.world;
};

TEST_F(AutoStartAwayTest, EditorBehindALockedScreenStartsNoSession) {
    world.time.advance(60.0);
    world.idleSource.touch();
    world.screens.sleep();
    world.time.advance(600.0);
    EXPECT_EQ(tracker().state(), State::Idle);
    world.idleSource.touch(); // the password
    world.screens.wake();
    openEditor();
    world.time.advance(60.0);
    world.idleSource.touch();
    world.time.advance(65.0);
    EXPECT_EQ(tracker().state(), State::Running);
    EXPECT_EQ(tracker().displayActiveSeconds(), 5);
}

TEST_F(AutoStartAwayTest, PasswordBeforeTheUnlockStartsNoSession) {
    world.screens.sleep();
    world.time.advance(110.0);
    world.idleSource.touch(); // the password
    world.time.advance(15.0);
    EXPECT_EQ(tracker().state(), State::Idle);
}

TEST_F(AutoStartAwayTest, SessionOfAUserWhoIsAwayStartsPausedAndCountsFromTheirReturn) {
    settings::idleThresholdSeconds.write(world.preferences, 60.0);
    world.time.advance(15.0);
    world.idleSource.touch();
    // Away for 105 s when auto mode looks: enough for the monitor, too little for auto mode.
    world.time.advance(3 * 3600.0);
    EXPECT_EQ(tracker().state(), State::Paused);
    EXPECT_EQ(tracker().displayActiveSeconds(), 0);
    world.idleSource.touch();
    world.time.advance(30.0);
    EXPECT_EQ(tracker().state(), State::Running);
    EXPECT_GE(tracker().displayActiveSeconds(), 20);
    EXPECT_LE(tracker().displayActiveSeconds(), 30);
}

} // namespace
} // namespace vantle::tests
