// When auto mode runs, and what it does about sessions.
#include "sensing/AutoSkillWorld.h"
#include "tracking/Settings.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AutoSkillMonitorTest : public testing::Test, protected AutoSkillWorld {};

// Running

TEST_F(AutoSkillMonitorTest, RunsUnlessTheUserSwitchedItOff) {
    start();
    EXPECT_TRUE(monitor->isRunning());
    set(settings::autoMode, false);
    EXPECT_FALSE(monitor->isRunning());
    set(settings::autoMode, true);
    EXPECT_TRUE(monitor->isRunning());
}

TEST_F(AutoSkillMonitorTest, CountsTheApplicationInFrontFromWhenItIsSwitchedOn) {
    beRunning("marketing");
    set(settings::autoMode, false);
    frontmost.application = xcode;
    start();
    time.advance(100);
    set(settings::autoMode, true);
    time.advance(44.875);
    EXPECT_THAT(takeCalls(), IsEmpty());
    time.advance(0.125);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, SwitchedOffForgetsWhatItWaitedForAndHearsOfNoSwitch) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(30);
    set(settings::autoMode, false);
    EXPECT_EQ(time.timerCount(), 0u);
    activate(figma);
    EXPECT_EQ(time.timerCount(), 0u);
    set(settings::autoMode, true);
    activate(xcode);
    time.advance(44.875);
    EXPECT_THAT(takeCalls(), IsEmpty()) << "the thirty seconds are forgotten";
}

TEST_F(AutoSkillMonitorTest, SwitchedOffSeesNoApplicationMoreFromThatMoment) {
    start();
    settings::autoMode.write(preferences, false);
    activate(xcode);
    EXPECT_TRUE(monitor->rules().seenApps().empty());
}

TEST_F(AutoSkillMonitorTest, SwitchThatComesAfterItsEndIsForgotten) {
    set(settings::autoMode, false);
    frontmost.application = xcode;
    settings::autoMode.write(preferences, true);
    monitor.reset();
    time.settle();
    EXPECT_FALSE(hasFile()) << "started, it would have written its first rules";
}

TEST_F(AutoSkillMonitorTest, WaitsForNothingBetweenSwitches) {
    start();
    EXPECT_EQ(time.timerCount(), 0u);
    activate(xcode);
    EXPECT_EQ(time.timerCount(), 0u) << "no session, and none is to be started";
    beRunning("marketing");
    activate(xcode);
    EXPECT_EQ(time.timerCount(), 1u);
    activate(figma);
    EXPECT_EQ(time.timerCount(), 1u);
    time.advance(45);
    EXPECT_EQ(time.timerCount(), 0u);
}

TEST_F(AutoSkillMonitorTest, IgnoresItsOwnWindowsAndApplicationsWithoutIdentity) {
    start();
    activate(own);
    activate({QString(), text("Nameless")});
    frontmost.activate(std::nullopt);
    EXPECT_TRUE(monitor->rules().seenApps().empty());
    EXPECT_EQ(time.timerCount(), 0u);
}

TEST_F(AutoSkillMonitorTest, CallsAnApplicationWithoutNameByItsIdentity) {
    start();
    activate({text("org.tool"), QString()});
    EXPECT_EQ(monitor->rules().seenApps().front().name, text("org.tool"));
}

// Rules on the way

TEST_F(AutoSkillMonitorTest, MakesAnAutomaticRuleOfAGuess) {
    start();
    activate({text("org.gimp"), text("Photoshop Remote")});
    EXPECT_EQ(monitor->rules().ruling(text("org.gimp")), text("product_design"));
    EXPECT_TRUE(monitor->rules().isAutomaticallyCategorized(text("org.gimp")));
    EXPECT_EQ(stored().rules[text("org.gimp")], text("product_design"));
}

TEST_F(AutoSkillMonitorTest, LeavesAnIgnoredApplicationAloneForEver) {
    beRunning("marketing");
    turnOnAutoStart();
    start();
    monitor->rules().setRule(xcode.bundleId, text("ignore"));
    activate(xcode);
    time.advance(1000);
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_EQ(monitor->rules().seenApps().size(), 1u) << "though it was seen";
}

// Changing the skill of a session

TEST_F(AutoSkillMonitorTest, SuggestsTheSkillAfterFortyFiveSeconds) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(44.875);
    EXPECT_THAT(takeCalls(), IsEmpty());
    time.advance(0.125);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, KeepsTheServedTimeOverAGlanceAtItsOwnWindow) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(30);
    activate(own);
    time.advance(19);
    EXPECT_THAT(takeCalls(), IsEmpty());
    activate(xcode);
    time.advance(15);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, KeepsNothingOfAStayThatWasAlmostOver) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(44.5);
    activate(own);
    activate(xcode);
    time.advance(44.875);
    EXPECT_THAT(takeCalls(), IsEmpty());
    time.advance(0.125);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, KeepsTheServedTimeForTwentySecondsThatLastIncluded) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(30);
    activate(own);
    time.advance(20);
    activate(xcode);
    time.advance(15);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, RestartsAfterMoreThanTwentySecondsElsewhere) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(30);
    activate(own);
    time.advance(20.125);
    activate(xcode);
    time.advance(44.875);
    EXPECT_THAT(takeCalls(), IsEmpty());
    time.advance(0.125);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, KeepsTheServedTimeOverATripThroughTwoApplications) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(40);
    activate(safari);
    time.advance(5);
    activate(finder);
    time.advance(5);
    activate(xcode);
    time.advance(5);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, KeepsTheServedTimeOfOneApplicationOnly) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(40);
    activate(slack);
    time.advance(5);
    activate(xcode);
    time.advance(44.875);
    EXPECT_THAT(takeCalls(), IsEmpty()) << "the interrupted stay in Slack took its place";
}

TEST_F(AutoSkillMonitorTest, CountsOnWhenTheSameApplicationComesToTheFrontAgain) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(30);
    activate(xcode);
    time.advance(15);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, ArmsNothingForTheSkillThatIsCurrentAndKeepsWhatItKept) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(40);
    beRunning("building");
    activate(xcode);
    EXPECT_EQ(time.timerCount(), 0u);
    beRunning("marketing");
    activate(xcode);
    time.advance(5);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, ArmsNothingInAPauseAndLetsAStayPassThatEndsInOne) {
    beRunning("marketing");
    start();
    state = State::Paused;
    activate(xcode);
    EXPECT_EQ(time.timerCount(), 0u);
    state = State::Running;
    activate(xcode);
    state = State::Paused;
    time.advance(45);
    state = State::Running;
    time.advance(1000);
    EXPECT_THAT(takeCalls(), IsEmpty()) << "it has to come to the front again";
    activate(xcode);
    time.advance(45);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, ChangesNothingForAnApplicationThatVanished) {
    beRunning("marketing");
    start();
    activate(xcode);
    frontmost.application.reset();
    time.advance(45);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(AutoSkillMonitorTest, ChangesNothingWhenAnotherCameToTheFrontUntold) {
    beRunning("marketing");
    start();
    activate(xcode);
    frontmost.application = viewer;
    time.advance(45);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(AutoSkillMonitorTest, ChangesNothingWhenTheRuleChangedInTheMeantime) {
    beRunning("marketing");
    start();
    activate(xcode);
    monitor->rules().setRule(xcode.bundleId, text("founder_ops"));
    time.advance(45);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(AutoSkillMonitorTest, ChangesNothingWhenTheUserChoseThatSkillInTheMeantime) {
    beRunning("marketing");
    start();
    activate(xcode);
    beRunning("building");
    time.advance(45);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(AutoSkillMonitorTest, RetagsOnAMachineLeftAlone) {
    beRunning("marketing");
    source.becomeUnknown();
    start();
    activate(xcode);
    time.advance(45);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, LeavesAnApplicationAloneWhoseSkillTheUserOverruled) {
    beRunning("marketing");
    start();
    activate(xcode);
    monitor->noteManualSkillChoice();
    time.advance(45);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building")) << "a stay that runs already goes on";
    activate(xcode);
    time.advance(45);
    EXPECT_THAT(takeCalls(), IsEmpty());
    monitor->clearSessionOverrides();
    activate(xcode);
    time.advance(45);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

TEST_F(AutoSkillMonitorTest, ChoiceByHandWithNoApplicationInFrontOverrulesNone) {
    beRunning("marketing");
    start();
    for (const auto& app :
         {std::optional<Application>(), std::optional(Application{QString(), text("Nameless")})}) {
        frontmost.application = app;
        monitor->noteManualSkillChoice();
        activate(xcode);
        time.advance(45);
        EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
    }
}

TEST_F(AutoSkillMonitorTest, SurvivesAClockThatIsSetBackDuringAStay) {
    beRunning("marketing");
    start();
    activate(xcode);
    time.advance(30);
    time.shiftWall(-86400);
    time.advance(15);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building")) << "stays go by the timer";
    activate(own);
    time.shiftWall(-86400);
    activate(xcode);
    time.advance(45);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building"));
}

// Erasing

TEST_F(AutoSkillMonitorTest, ForgetsEverythingAtAnErase) {
    beRunning("marketing");
    start();
    activate(xcode);
    monitor->noteManualSkillChoice();
    monitor->noteTagPromptResolved(finder.bundleId);
    monitor->eraseAllData();
    EXPECT_EQ(time.timerCount(), 0u);
    EXPECT_TRUE(monitor->mayOfferCorrectionPrompt(finder.bundleId));
    EXPECT_TRUE(monitor->mayOfferCorrectionPrompt(viewer.bundleId));
    EXPECT_TRUE(monitor->rules().rules().isEmpty());
    EXPECT_FALSE(hasFile());
    activate(xcode);
    time.advance(45);
    EXPECT_THAT(takeCalls(), ElementsAre("retag building")) << "guessed anew, nothing overruled";
}

} // namespace
} // namespace vantle
