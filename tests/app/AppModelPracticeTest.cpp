// Sessions that leave nothing in the log, and those that must not be taken for them.
#include "app/ModelWorld.h"
#include "support/Text.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using State = TrackerCore::State;

class AppModelPracticeTest : public testing::Test {
protected:
    AppModel& launched() { return world.launch(); }

    ModelWorld world;
};

TEST_F(AppModelPracticeTest, APracticeSessionIsShownButLeavesNoTraceInTheLog) {
    settings::welcomeDone.remove(world.preferences);
    launched();
    world.press();
    world.time.advance(60.0);
    world.press();
    EXPECT_TRUE(world.told.has(text("summary")));
    EXPECT_TRUE(world.told.summary->spotlightNote);
    EXPECT_TRUE(world.log().empty());
    world.told.closeSummary(text("a note"));
    EXPECT_EQ(world.note(), QString());
}

TEST_F(AppModelPracticeTest, TheIdleCapsuleComesBackOnlyAfterTheWelcome) {
    settings::welcomeDone.remove(world.preferences);
    AppModel& model = launched();
    const auto endASession = [this] {
        world.press();
        world.time.advance(60.0);
        world.told.calls.clear();
        world.press();
        return !world.told.calls.filter(text("notch idle")).isEmpty();
    };
    EXPECT_FALSE(endASession());
    model.markWelcomeDone();
    EXPECT_TRUE(endASession());
}

TEST_F(AppModelPracticeTest, ScreenThatComesInTheWelcomeGetsNoIdleCapsule) {
    settings::welcomeDone.remove(world.preferences);
    AppModel& model = launched();
    world.told.calls.clear();
    model.ensureIdleNotch();
    EXPECT_TRUE(world.told.calls.isEmpty());
    model.markWelcomeDone();
    model.ensureIdleNotch();
    EXPECT_EQ(world.told.calls, QStringList{text("notch idle building flash 0")});
}

TEST_F(AppModelPracticeTest, PracticeAfterTheWelcomeLeavesNoRecordEither) {
    AppModel& model = launched();
    model.startPractice();
    EXPECT_TRUE(model.isPractice());
    world.time.advance(60.0);
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Auto);
    EXPECT_TRUE(model.isPractice());
    world.time.advance(60.0);
    world.press();
    EXPECT_FALSE(model.isPractice());
    EXPECT_TRUE(world.told.summary->spotlightNote);
    EXPECT_TRUE(world.log().empty());
    world.press();
    EXPECT_FALSE(model.isPractice());
    world.press();
    EXPECT_EQ(world.log().size(), 1u);
    EXPECT_FALSE(world.told.summary->spotlightNote);
}

TEST_F(AppModelPracticeTest, PracticeIsNotStartedInTheMiddleOfWork) {
    AppModel& model = launched();
    world.press();
    world.time.advance(60.0);
    model.startPractice();
    EXPECT_EQ(model.tracker().state(), State::Running);
    EXPECT_FALSE(model.isPractice());
    world.press();
    EXPECT_EQ(world.log().size(), 1u);
}

TEST_F(AppModelPracticeTest, WorkIsNeitherMarkedNorDiscardedAsPractice) {
    AppModel& model = launched();
    world.press();
    model.markSessionAsPractice();
    EXPECT_FALSE(model.isPractice());
    model.discardPracticeSession();
    EXPECT_EQ(model.tracker().state(), State::Running);
    world.press();
    EXPECT_EQ(world.log().size(), 1u);
}

TEST_F(AppModelPracticeTest, DiscardingThePracticeSessionShowsNoSummary) {
    AppModel& model = launched();
    model.startPractice();
    world.told.calls.clear();
    model.discardPracticeSession();
    EXPECT_FALSE(world.told.has(text("summary")));
    EXPECT_TRUE(world.log().empty());
    EXPECT_TRUE(world.told.has(text("notch idle building flash 0")));
}

TEST_F(AppModelPracticeTest, FinishingTheWelcomeIsRemembered) {
    settings::welcomeDone.remove(world.preferences);
    settings::welcomeStage.write(world.preferences, text("3"));
    AppModel& model = launched();
    EXPECT_TRUE(model.needsWelcome());
    model.markWelcomeDone();
    EXPECT_FALSE(model.needsWelcome());
    EXPECT_EQ(settings::welcomeStage.stored(world.preferences), std::nullopt);
}

} // namespace
} // namespace vantle::tests
