// What becomes of auto mode's suggestions: the real monitor follows applications on virtual time.
#include "app/ModelWorld.h"
#include "support/Text.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using State = TrackerCore::State;
using Outcome = collaborators::TagPrompt::Outcome;

constexpr double kPromptDwell = AutoSkillMonitor::tagPromptDwellSeconds;
constexpr double kRetagDwell = AutoSkillMonitor::retagDwellSeconds;
constexpr double kStartDwell = AutoSkillMonitor::autoStartDwellSeconds;

class AutoModeAnswersTest : public testing::Test {
protected:
    AutoRules& rules() { return world.autoSkill->rules(); }
    /// The application was ruled to be for that skill.
    void rule(const Application& application, const char* skillId) {
        rules().setRule(application.bundleId, text(skillId));
    }

    const Application editor{text("editor"), text("Editor")};
    const Application unheard{text("org.example.Unheard"), text("Unheard")};
    ModelWorld world;
    AppModel& model = world.launch();
    TrackerCore& tracker = model.tracker();
};

TEST_F(AutoModeAnswersTest, AutoStartPlaysTheQuickShow) {
    settings::autoStart.write(world.preferences, true);
    world.settle();
    rule(editor, "marketing");
    world.workIn(editor, kStartDwell);
    EXPECT_TRUE(world.told.has(text("ripple quick FF375F Marketing")));
    EXPECT_EQ(tracker.state(), State::Running);
    EXPECT_EQ(tracker.currentSkillId(), text("marketing"));
    world.time.advance(1.35);
    EXPECT_TRUE(world.told.has(text("notch flash start")));
}

TEST_F(AutoModeAnswersTest, StartByHandAfterAnAutoStartPlaysTheFullShow) {
    settings::autoStart.write(world.preferences, true);
    world.settle();
    rule(editor, "marketing");
    world.workIn(editor, kStartDwell);
    world.press();
    world.told.calls.clear();
    world.press();
    EXPECT_TRUE(world.told.has(text("ripple full FF375F Marketing")));
}

TEST_F(AutoModeAnswersTest, ApplicationOfTheSessionIsAskedAboutOnlyBetweenSessions) {
    world.frontmost.application = unheard;
    EXPECT_EQ(model.sessionBundleId(), std::nullopt);
    model.toggleVantle();
    EXPECT_EQ(model.sessionBundleId(), unheard.bundleId);
    world.workIn(unheard, kPromptDwell);
    EXPECT_TRUE(world.told.calls.filter(text("tag prompt")).isEmpty());
    model.toggleVantle();
    EXPECT_EQ(model.sessionBundleId(), std::nullopt);
    world.workIn(unheard, kPromptDwell);
    EXPECT_TRUE(world.told.has(text("tag prompt Unheard counting 0 browser 0")));
}

TEST_F(AutoModeAnswersTest, StayInARuledApplicationSplitsOnlyAnOpenSession) {
    rule(editor, "marketing");
    world.workIn(editor, kRetagDwell);
    EXPECT_EQ(model.selectedSkillId(), text("building"));
    model.toggleVantle();
    world.workIn(editor, kRetagDwell);
    EXPECT_EQ(tracker.currentSkillId(), text("marketing"));
    EXPECT_EQ(world.log().size(), 1u);
    EXPECT_TRUE(world.told.calls.filter(text("toast")).isEmpty());
    world.workIn(editor, kRetagDwell);
    EXPECT_EQ(world.log().size(), 1u) << "it is under that skill already";
}

TEST_F(AutoModeAnswersTest, SkillChosenByHandStaysForTheApplicationInFront) {
    rule(editor, "building");
    model.toggleVantle();
    world.workIn(editor, 5);
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.workIn(editor, kRetagDwell);
    EXPECT_EQ(tracker.currentSkillId(), text("marketing"));
    // The next session knows nothing of it.
    model.toggleVantle();
    model.toggleVantle();
    world.workIn(editor, kRetagDwell);
    EXPECT_EQ(tracker.currentSkillId(), text("building"));
}

TEST_F(AutoModeAnswersTest, AnswersToTheTagPromptBecomeRules) {
    const Application browser{text("org.example.web"), text("Mozilla Firefox")};
    model.toggleVantle();
    world.workIn(browser, kPromptDwell);
    EXPECT_TRUE(world.told.has(text("tag prompt Mozilla Firefox counting 1 browser 1")));
    world.told.resolveTag({Outcome::Kind::Dismiss, QString()});
    EXPECT_EQ(rules().ruling(browser.bundleId), std::nullopt);
    EXPECT_FALSE(world.autoSkill->mayOfferCorrectionPrompt(browser.bundleId)) << "just resolved";
    world.told.resolveTag({Outcome::Kind::Ignore, QString()});
    EXPECT_EQ(rules().ruling(browser.bundleId), text("ignore"));
    world.told.resolveTag({Outcome::Kind::Tagged, text("gone")});
    EXPECT_EQ(rules().ruling(browser.bundleId), text("ignore"));
    world.told.resolveTag({Outcome::Kind::Tagged, text("marketing")});
    EXPECT_EQ(rules().ruling(browser.bundleId), text("marketing"));
    EXPECT_EQ(tracker.currentSkillId(), text("marketing"));
    EXPECT_EQ(world.log().size(), 1u);
}

TEST_F(AutoModeAnswersTest, AnswerAfterTheSessionChoosesNoSkill) {
    model.toggleVantle();
    world.workIn(unheard, kPromptDwell);
    model.toggleVantle();
    const QString before = model.selectedSkillId();
    world.told.resolveTag({Outcome::Kind::Tagged, text("marketing")});
    EXPECT_EQ(rules().ruling(unheard.bundleId), text("marketing"));
    EXPECT_EQ(model.selectedSkillId(), before);
}

TEST_F(AutoModeAnswersTest, TagPromptThatFoundNoPlaceComesAgain) {
    world.told.promptsTaken = false;
    world.workIn(unheard, kPromptDwell);
    world.told.promptsTaken = true;
    world.told.calls.clear();
    world.workIn(unheard, kPromptDwell);
    EXPECT_TRUE(world.told.has(text("tag prompt Unheard counting 0 browser 0")));
}

TEST_F(AutoModeAnswersTest, RuleIsOfferedAfterAChoiceByHand) {
    world.frontmost.application = editor;
    world.press();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_LT(world.told.calls.indexOf(text("correction Editor as marketing")),
              world.told.calls.indexOf(text("toast Build 7A78FF 0")));
    world.told.resolveCorrection(true);
    EXPECT_EQ(rules().ruling(editor.bundleId), text("marketing"));
    model.selectSkill(text("building"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_FALSE(world.told.has(text("correction Editor as building"))) << "just resolved";
}

TEST_F(AutoModeAnswersTest, NoRuleIsOfferedForAnIgnoredOrRuledApplicationOrWithAutoModeOff) {
    world.frontmost.application = editor;
    world.press();
    rule(editor, "ignore");
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    rule(editor, "building");
    model.selectSkill(text("building"), AppModel::SkillSelectionOrigin::Human);
    rules().setRule(editor.bundleId, std::nullopt);
    world.preferences.setBoolean(text("auto.enabled"), false);
    model.selectSkill(text("connections"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_TRUE(world.told.calls.filter(text("correction")).isEmpty());
}

TEST_F(AutoModeAnswersTest, OfferThatFoundNoPlaceComesAgain) {
    world.frontmost.application = editor;
    world.told.promptsTaken = false;
    world.press();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.told.promptsTaken = true;
    model.selectSkill(text("building"), AppModel::SkillSelectionOrigin::Human);
    EXPECT_TRUE(world.told.has(text("correction Editor as building")));
}

} // namespace
} // namespace vantle::tests
