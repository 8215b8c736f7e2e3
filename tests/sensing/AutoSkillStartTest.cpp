// When auto mode starts a session, and what it does without hooks.
#include "sensing/AutoSkillWorld.h"
#include "tracking/Settings.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AutoSkillStartTest : public testing::Test, protected AutoSkillWorld {};

TEST_F(AutoSkillStartTest, StartsASessionAfterTwoMinutesIfTheUserWantsThat) {
    start();
    activate(xcode);
    time.advance(500);
    EXPECT_THAT(takeCalls(), IsEmpty());
    turnOnAutoStart();
    activate(xcode);
    time.advance(119.875);
    EXPECT_THAT(takeCalls(), IsEmpty());
    time.advance(0.125);
    EXPECT_THAT(takeCalls(), ElementsAre("start building"));
}

TEST_F(AutoSkillStartTest, RestartsTheTwoMinutesAtEverySwitch) {
    turnOnAutoStart();
    start();
    activate(xcode);
    time.advance(119);
    activate(xcode);
    time.advance(119.875);
    EXPECT_THAT(takeCalls(), IsEmpty());
    time.advance(0.125);
    EXPECT_THAT(takeCalls(), ElementsAre("start building"));
}

TEST_F(AutoSkillStartTest, StartsNothingForAnAbsentUser) {
    turnOnAutoStart();
    start();
    source.touch();
    activate(xcode);
    time.advance(120);
    source.fix(0);
    time.advance(1000);
    EXPECT_THAT(takeCalls(), IsEmpty()) << "not before the application comes to the front again";
    source.fix(119.875);
    activate(xcode);
    time.advance(120);
    EXPECT_THAT(takeCalls(), ElementsAre("start building"));
}

TEST_F(AutoSkillStartTest, StartsNothingWithAnUnknownCounter) {
    turnOnAutoStart();
    start();
    source.becomeUnknown();
    activate(xcode);
    time.advance(120);
    activate(finder);
    time.advance(90);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(AutoSkillStartTest, StartsNothingWhenASessionWasStartedByHand) {
    turnOnAutoStart();
    start();
    activate(xcode);
    time.advance(60);
    beRunning("marketing");
    time.advance(60);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(AutoSkillStartTest, StartsNothingWhenTheUserChangedTheirMind) {
    turnOnAutoStart();
    start();
    activate(xcode);
    time.advance(60);
    set(settings::autoStart, false);
    time.advance(60);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

// Without hooks

TEST_F(AutoSkillStartTest, DoesNothingWithoutHooks) {
    monitor->onRetagSuggested = {};
    monitor->onAutoStart = {};
    monitor->sessionState = {};
    monitor->sessionSkillId = {};
    turnOnAutoStart();
    start();
    activate(xcode);
    time.advance(120);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(AutoSkillStartTest, HooksThatGoDuringAStayAreNotCalled) {
    start();
    beRunning("marketing");
    activate(xcode);
    monitor->onRetagSuggested = {};
    time.advance(45);
    activate(finder);
    monitor->onTagPromptSuggested = {};
    monitor->sessionBundleId = {};
    time.advance(90);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(AutoSkillStartTest, SessionWhoseSkillIsNotToldIsUnderAnother) {
    monitor->sessionSkillId = {};
    beRunning("building");
    start();
    activate(xcode);
    time.advance(45);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

} // namespace
} // namespace vantle
