// When auto mode asks what an application is for.
#include "sensing/AutoSkillWorld.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TagPromptTest : public testing::Test, protected AutoSkillWorld {
protected:
    TagPromptTest() { start(); }
    void stayIn(const Application& app) {
        activate(app);
        time.advance(90);
    }
};

TEST_F(TagPromptTest, AsksOnceAfterNinetySecondsInAnUnknownApplication) {
    activate(finder);
    time.advance(89.875);
    EXPECT_THAT(takeCalls(), IsEmpty());
    time.advance(0.125);
    EXPECT_THAT(takeCalls(), ElementsAre("ask org.files Files"));
    stayIn(finder);
    EXPECT_THAT(takeCalls(), IsEmpty()) << "not twice in a launch";
}

TEST_F(TagPromptTest, AsksInEveryStateOfTheSession) {
    state = State::Paused;
    stayIn(finder);
    beRunning("marketing");
    stayIn(safari);
    EXPECT_THAT(takeCalls(), ElementsAre("ask org.files Files", "ask com.apple.Safari Safari"));
}

TEST_F(TagPromptTest, AsksUnderTheNameThatItHadWhenItCame) {
    activate(finder);
    frontmost.application->name = text("Files — Downloads");
    time.advance(90);
    EXPECT_THAT(takeCalls(), ElementsAre("ask org.files Files"));
}

TEST_F(TagPromptTest, AsksNothingAboutAnApplicationThatWasLeft) {
    activate(finder);
    time.advance(89);
    activate(own);
    time.advance(100);
    EXPECT_THAT(takeCalls(), IsEmpty());
    activate(finder);
    frontmost.application.reset();
    time.advance(90);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(TagPromptTest, AsksNothingOnceThereIsARule) {
    activate(finder);
    monitor->rules().setRule(finder.bundleId, text("marketing"));
    time.advance(90);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(TagPromptTest, AsksNothingAboutWhereTheSessionBegan) {
    beRunning("marketing");
    bundleId = finder.bundleId;
    stayIn(finder);
    EXPECT_THAT(takeCalls(), IsEmpty());
    bundleId = viewer.bundleId;
    stayIn(finder);
    EXPECT_THAT(takeCalls(), ElementsAre("ask org.files Files"));
}

TEST_F(TagPromptTest, ShowsNoCardToAnAbsentUser) {
    source.touch();
    stayIn(finder);
    EXPECT_THAT(takeCalls(), IsEmpty());
    source.fix(89.875);
    stayIn(finder);
    EXPECT_THAT(takeCalls(), ElementsAre("ask org.files Files"));
}

TEST_F(TagPromptTest, AsksAgainWhenTheCardCouldNotBeShown) {
    monitor->onTagPromptSuggested = [this](const QString& id, const QString&) {
        calls.push_back("refused " + id.toStdString());
        monitor->forgetPromptOffer(id);
    };
    stayIn(finder);
    stayIn(finder);
    EXPECT_THAT(takeCalls(), ElementsAre("refused org.files", "refused org.files"));
}

TEST_F(TagPromptTest, LeavesAQuarterOfAnHourBetweenTwoQuestions) {
    stayIn(finder);
    monitor->noteTagPromptResolved(finder.bundleId);
    static_cast<void>(takeCalls());
    time.advance(809.875);
    stayIn(viewer);
    EXPECT_THAT(takeCalls(), IsEmpty()) << "already when it came it was too early";
    time.advance(0.125);
    stayIn(viewer);
    EXPECT_THAT(takeCalls(), ElementsAre("ask org.viewer Viewer"));
}

TEST_F(TagPromptTest, NeverAsksTwiceInALaunchHoweverLongItIs) {
    monitor->noteTagPromptResolved(finder.bundleId);
    EXPECT_FALSE(monitor->mayOfferCorrectionPrompt(finder.bundleId));
    time.advance(86400);
    EXPECT_FALSE(monitor->mayOfferCorrectionPrompt(finder.bundleId));
    EXPECT_TRUE(monitor->mayOfferCorrectionPrompt(viewer.bundleId));
}

TEST_F(TagPromptTest, WaitsHalfAnHourForOneThatWasForgottenMeanwhile) {
    monitor->noteTagPromptResolved(finder.bundleId);
    monitor->forgetPromptOffer(finder.bundleId);
    time.advance(1799.875);
    EXPECT_FALSE(monitor->mayOfferCorrectionPrompt(finder.bundleId));
    EXPECT_TRUE(monitor->mayOfferCorrectionPrompt(viewer.bundleId));
    time.advance(0.125);
    EXPECT_TRUE(monitor->mayOfferCorrectionPrompt(finder.bundleId));
}

TEST_F(TagPromptTest, StartsNoTimerWithoutACardToAsk) {
    monitor->onTagPromptSuggested = {};
    activate(finder);
    EXPECT_EQ(time.timerCount(), 0u);
}

TEST_F(TagPromptTest, OffersCorrectionsForTheApplicationInFrontButNotForBrowsersOrItself) {
    frontmost.application = xcode;
    EXPECT_EQ(monitor->frontmostAppForCorrection(), xcode);
    frontmost.application = Application{text("org.tool"), QString()};
    EXPECT_EQ(monitor->frontmostAppForCorrection(),
              (Application{text("org.tool"), text("org.tool")}));
    for (const auto& app :
         {std::optional(safari), std::optional(own),
          std::optional(Application{QString(), text("Nameless")}), std::optional<Application>()}) {
        frontmost.application = app;
        EXPECT_EQ(monitor->frontmostAppForCorrection(), std::nullopt);
    }
}

} // namespace
} // namespace vantle
