// What the buttons of capsule and cards do, in the state they were made for, in another, and after
// the model is gone.
#include "app/ModelWorld.h"
#include "support/Text.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using State = TrackerCore::State;
using Outcome = collaborators::TagPrompt::Outcome;

class AppModelCardsTest : public testing::Test {
protected:
    static constexpr double promptDwell = AutoSkillMonitor::tagPromptDwellSeconds;
    static constexpr double retagDwell = AutoSkillMonitor::retagDwellSeconds;
    static constexpr double startDwell = AutoSkillMonitor::autoStartDwellSeconds;

    void ruleAndStartByItself() {
        settings::autoStart.write(world.preferences, true);
        world.settle();
        world.autoSkill->rules().setRule(editor.bundleId, text("marketing"));
    }

    const Application editor{text("editor"), text("Editor")};
    const Application unheard{text("org.example.Unheard"), text("Unheard")};
    ModelWorld world;
    AppModel& model = world.launch();
    TrackerCore& tracker = model.tracker();
};

TEST_F(AppModelCardsTest, TheButtonsOfTheCapsuleStartAndStop) {
    world.told.idleStart();
    EXPECT_EQ(tracker.state(), State::Running);
    world.told.notchStop();
    EXPECT_EQ(tracker.state(), State::Idle);
    EXPECT_EQ(world.log().size(), 1u);
}

TEST_F(AppModelCardsTest, AChipOfTheRunningCapsuleChangesTheSkill) {
    world.press();
    world.time.advance(60.0);
    world.told.notchPick(text("marketing"));
    EXPECT_EQ(tracker.currentSkillId(), text("marketing"));
    EXPECT_EQ(world.log().size(), 1u);
}

TEST_F(AppModelCardsTest, AChipThatComesTooLateForItsStateDoesNothing) {
    const auto idlePick = world.told.idlePick;
    world.press();
    idlePick(text("marketing"));
    EXPECT_EQ(tracker.currentSkillId(), text("building"));
    const auto notchPick = world.told.notchPick;
    world.press();
    notchPick(text("marketing"));
    EXPECT_EQ(model.selectedSkillId(), text("building"));
    EXPECT_EQ(tracker.state(), State::Idle);
    EXPECT_EQ(world.log().size(), 1u);
}

TEST_F(AppModelCardsTest, ASummaryThatIsClosedLeavesTheNoteEmpty) {
    world.press();
    world.time.advance(60.0);
    world.press();
    world.told.closeSummary(std::nullopt);
    EXPECT_EQ(world.log().front().note, QString());
}

TEST_F(AppModelCardsTest, AStartDropsTheNoteThatIsBeingTyped) {
    world.press();
    world.press();
    const int before = world.told.notesForgotten;
    world.press();
    EXPECT_EQ(world.told.notesForgotten, before + 1);
}

TEST_F(AppModelCardsTest, AnEraseDropsTheNoteThatIsBeingTyped) {
    world.press();
    world.press();
    const int before = world.told.notesForgotten;
    EXPECT_EQ(model.eraseEverything(), std::nullopt);
    EXPECT_EQ(world.told.notesForgotten, before + 1);
}

TEST_F(AppModelCardsTest, CardsThatOutliveTheModelChangeNothing) {
    world.workIn(unheard, promptDwell);
    world.press();
    world.frontmost.application = editor;
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    ASSERT_TRUE(world.told.resolveTag && world.told.resolveCorrection);
    world.press();
    const auto log = world.log();
    world.press();
    world.time.advance(130.0);
    world.kill();
    world.launch();
    const Told told = world.told;
    const QStringList preferences = world.preferences.keys();
    world.kill();
    told.idlePick(text("marketing"));
    told.edit.onAdd(text("New"), 0x30D158);
    told.edit.onUpdate(text("building"), text("Other"), 0x30D158);
    told.edit.onDelete(text("building"));
    told.resolveTag({Outcome::Kind::Tagged, text("marketing")});
    told.resolveCorrection(true);
    told.closeSummary(text("a note"));
    told.recoveryKeep();
    told.recoveryDiscard();
    EXPECT_EQ(world.log(), log);
    EXPECT_TRUE(world.hasMarker()) << "the offer is there for the next run";
    EXPECT_EQ(world.preferences.keys(), preferences);
}

TEST_F(AppModelCardsTest, AutoModeThatOutlivesTheModelStartsAndAsksNothing) {
    ruleAndStartByItself();
    world.model.reset();
    world.told.calls.clear();
    world.workIn(editor, startDwell);
    world.workIn(unheard, promptDwell);
    EXPECT_TRUE(world.told.calls.isEmpty());
    EXPECT_FALSE(world.hasMarker());
}

TEST_F(AppModelCardsTest, AutoModeStartsNoSessionBehindALockedScreen) {
    ruleAndStartByItself();
    world.workIn(editor, startDwell - 5);
    world.screens.sleep();
    world.time.advance(5.0);
    EXPECT_EQ(tracker.state(), State::Idle);
}

TEST_F(AppModelCardsTest, AnAbsenceFromBeforeAnAutoStartDoesNotCount) {
    settings::idleThresholdSeconds.write(world.preferences, 60);
    ruleAndStartByItself();
    world.workIn(editor, 30);
    world.time.advance(startDwell - 30);
    EXPECT_EQ(tracker.state(), State::Paused);
    world.time.advance(60.0);
    world.press();
    ASSERT_EQ(world.log().size(), 1u);
    EXPECT_EQ(world.log().front().activeSeconds, 0);
}

TEST_F(AppModelCardsTest, AnAnswerWithTheSkillThatRunsSplitsNothing) {
    model.toggleVantle();
    world.workIn(unheard, promptDwell);
    ASSERT_TRUE(world.told.resolveTag);
    world.told.resolveTag({Outcome::Kind::Tagged, text("building")});
    EXPECT_EQ(world.autoSkill->rules().ruling(unheard.bundleId), text("building"));
    EXPECT_TRUE(world.log().empty());
}

TEST_F(AppModelCardsTest, ARuleThatIsNotWantedIsNotMade) {
    world.frontmost.application = editor;
    world.press();
    model.selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    world.told.resolveCorrection(false);
    EXPECT_EQ(world.autoSkill->rules().ruling(editor.bundleId), std::nullopt);
}

TEST_F(AppModelCardsTest, WithoutShowsTheCapsuleFlashesAtOnce) {
    settings::rippleDisabled.write(world.preferences, true);
    world.press();
    world.time.advance(10.0);
    EXPECT_FALSE(world.told.has(text("notch flash start")));
}

TEST_F(AppModelCardsTest, TheIntroductionIsDroppedWhereASessionBeganMeanwhile) {
    model.flashIdleNotchIntroIfNeeded();
    world.press();
    world.time.advance(2.0);
    EXPECT_FALSE(world.told.has(text("notch flash idle")));
}

TEST_F(AppModelCardsTest, NoIntroductionInASession) {
    world.press();
    model.flashIdleNotchIntroIfNeeded();
    EXPECT_FALSE(settings::notchIntroFlashed.read(world.preferences));
}

TEST_F(AppModelCardsTest, AnApplicationWithoutAnIdIsNotThatOfTheSession) {
    world.frontmost.application = Application{QString(), text("Nameless")};
    world.press();
    EXPECT_EQ(model.sessionBundleId(), std::nullopt);
}

TEST_F(AppModelCardsTest, AddingAnExistingNameInASessionChoosesNothing) {
    world.press();
    model.addSkill(text("marketing"), 0x30D158);
    EXPECT_EQ(model.selectedSkillId(), text("building"));
    EXPECT_EQ(world.note(), text("Marketing already exists"));
}

TEST_F(AppModelCardsTest, ARuleOfASkillThatIsGoneRetagsNothing) {
    model.toggleVantle();
    world.autoSkill->rules().setRule(editor.bundleId, text("marketing"));
    world.workIn(editor, retagDwell / 2);
    world.skills->remove(text("marketing"));
    world.workIn(editor, retagDwell);
    EXPECT_EQ(tracker.currentSkillId(), text("building"));
    EXPECT_TRUE(world.log().empty());
}

} // namespace
} // namespace vantle::tests
