// The steps, and what each of them does.
#include "surfaces/welcome/WelcomeWorld.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using namespace welcometext;

class WelcomeViewTest : public testing::Test, protected tests::WelcomeWorld {
protected:
    [[nodiscard]] QStringList modeNames() {
        QStringList names;
        for (int row = 0; row < view->modes()->rowCount(); ++row)
            names
                << view->modes()->data(view->modes()->index(row), SkillListModel::Name).toString();
        return names;
    }
    void nameProduct(const char* name) { view->setProperty("productName", text(name)); }
};

TEST_F(WelcomeViewTest, WalksThroughTenStepsAndHasNoWayBack) {
    open();
    QStringList titles;
    for (int step = 0; step < stepCount; ++step) {
        walkTo(step);
        EXPECT_EQ(view->step(), step);
        titles << view->title();
    }
    EXPECT_EQ(titles,
              (QStringList{text("What are you working towards?"), text("These are your modes"),
                           text("Press it now"), text("You're building"), text("As easy as that"),
                           text("Switch modes from the notch"), text("Your hours, one click away"),
                           text("What is behind it"), text("Your work, wrapped"),
                           text("That is the whole app")}));
    EXPECT_EQ(view->primaryText(), text("Start building"));
    view->pressPrimary();
    EXPECT_FALSE(model->needsWelcome());
    EXPECT_EQ(closed, 1);
}

TEST_F(WelcomeViewTest, StartsWithTheFirstStepAtEachOpening) {
    open();
    walkTo(Success);
    EXPECT_EQ(open().step(), Pick);
    EXPECT_EQ(settings::welcomeStage.stored(preferences), std::nullopt);
}

TEST_F(WelcomeViewTest, SpeaksOfTheProjectByItsName) {
    open();
    nameProduct("  my app ");
    walkTo(Press);
    EXPECT_EQ(model->projectName(), text("my app"));
    EXPECT_EQ(view->body(), text("That's the whole app: one press and the clock starts on my app. "
                                 "The same press stops it."));
}

TEST_F(WelcomeViewTest, ProjectNameOfOneLetterIsDroppedWithoutComplaint) {
    open();
    nameProduct(" x ");
    view->pressPrimary();
    EXPECT_EQ(view->step(), Modes);
    EXPECT_EQ(model->projectName(), std::nullopt);
    EXPECT_EQ(note(), QString());
    walkTo(Press);
    EXPECT_TRUE(view->body().contains(text("the clock starts on your work.")));
}

TEST_F(WelcomeViewTest, OneCharacterOfManyCodePointsIsTooShortAndTwoAreEnough) {
    open();
    nameProduct("\U0001F469\u200D\U0001F52C");
    view->pressPrimary();
    EXPECT_EQ(model->projectName(), std::nullopt);
    open();
    nameProduct("雪山");
    view->pressPrimary();
    EXPECT_EQ(model->projectName(), text("雪山"));
}

TEST_F(WelcomeViewTest, PracticeIsUnderTheBuildingSkillWhereItIsThere) {
    launch();
    model->selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    open();
    view->pressPrimary();
    EXPECT_EQ(model->selectedSkillId(), text("building"));
    model->deleteSkill(text("building"));
    model->selectSkill(text("marketing"), AppModel::SkillSelectionOrigin::Human);
    open();
    view->pressPrimary();
    EXPECT_EQ(model->selectedSkillId(), text("marketing"));
}

TEST_F(WelcomeViewTest, SkippingAtTheFirstStepLeavesTheSkillsUnchanged) {
    open();
    nameProduct("my app");
    const auto before = model->skills();
    const QString selected = model->selectedSkillId();
    EXPECT_EQ(view->quietText(), text("skip the welcome"));
    view->pressQuiet();
    EXPECT_FALSE(model->needsWelcome());
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(model->skills(), before);
    EXPECT_EQ(model->selectedSkillId(), selected);
    EXPECT_EQ(model->projectName(), std::nullopt);
    EXPECT_TRUE(told.calls.last().startsWith(text("notch idle")));
}

TEST_F(WelcomeViewTest, EndingItTwiceIsEndingItOnce) {
    open();
    view->finish();
    view->finish();
    EXPECT_EQ(closed, 1);
}

TEST_F(WelcomeViewTest, FirstSessionAfterTheEndIsReal) {
    open();
    view->finish();
    press();
    time.advance(60);
    press();
    EXPECT_EQ(log().size(), 1U);
    EXPECT_FALSE(told.summary->spotlightNote);
}

TEST_F(WelcomeViewTest, OnlyTheFirstStepOffersToSkipAndOnlyTheReviewToBeOpened) {
    open();
    for (int step = 0; step < stepCount; ++step) {
        walkTo(step);
        const QString expected = step == Pick      ? text("skip the welcome")
                                 : step == Wrapped ? text("Open Wrapped")
                                                   : QString();
        EXPECT_EQ(view->quietText(), expected) << step;
    }
    open();
    walkTo(Wrapped);
    view->pressQuiet();
    EXPECT_EQ(wrappedOpened, 1);
    EXPECT_EQ(view->step(), Wrapped);
}

TEST_F(WelcomeViewTest, SamplesSayThatTheyAreNone) {
    open();
    for (int step = 0; step < stepCount; ++step) {
        walkTo(step);
        const bool isSample =
            step == Success || step == Dashboard || step == Brick || step == Wrapped;
        EXPECT_EQ(view->sampleLine() == text("A sample. Yours is one click away."), isSample)
            << step;
        EXPECT_TRUE(!isSample || !view->sampleLabel().isEmpty()) << step;
    }
}

TEST_F(WelcomeViewTest, TellsWhenTheShortcutIsHeldByAnotherAndTheButtonWorksAllTheSame) {
    hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
    open();
    EXPECT_EQ(view->shortcutProblem(), QString()) << "of no use before it is asked for";
    walkTo(Press);
    EXPECT_EQ(view->shortcutProblem(), text("⌥⌘B is already used by another app."));
    EXPECT_EQ(view->asideText(), text("or click here instead"));
    view->pressPrimary();
    settle();
    EXPECT_EQ(view->step(), Stop);
    view->pressPrimary();
    settle();
    closeCard();
    EXPECT_EQ(view->step(), Success);
}

TEST_F(WelcomeViewTest, PromisesNoShortcutWhereTheDesktopGivesNone) {
    hotKeyPort.outcome = {HotKeyPort::Registration::Waiting};
    open();
    walkTo(Press);
    EXPECT_EQ(view->shortcutProblem(), QString());
    hotKeyPort.become({HotKeyPort::Registration::NotOffered});
    EXPECT_EQ(view->shortcutProblem(),
              text("The shortcut doesn't work here yet. The settings say how it can."));
    hotKeyPort.become({HotKeyPort::Registration::Registered});
    EXPECT_EQ(view->shortcutProblem(), QString());
}

TEST_F(WelcomeViewTest, ModesAreAddedRenamedAndRemoved) {
    open();
    walkTo(Modes);
    view->addCategory();
    view->category()->setName(text("  Investors "));
    view->commitCategory();
    EXPECT_FALSE(view->category()->isShown());
    EXPECT_TRUE(modeNames().contains(text("Investors")));
    EXPECT_EQ(view->modesNote(), text("Added Investors"));

    view->beginRename(text("marketing"));
    EXPECT_EQ(view->category()->name(), text("Marketing"));
    view->category()->setName(text("Growth"));
    view->category()->chooseColor(5);
    view->commitCategory();
    EXPECT_TRUE(modeNames().contains(text("Growth")));
    EXPECT_EQ(skills->by(text("marketing")).hexRGB, Skill::palette[5]);

    view->removeCategory(text("connections"));
    EXPECT_FALSE(modeNames().contains(text("Connections")));
    EXPECT_EQ(view->modesNote(), text("Deleted Connections"));
}

TEST_F(WelcomeViewTest, ModeNameOfOneLetterClosesTheRowAndAddsNothing) {
    open();
    walkTo(Modes);
    view->addCategory();
    view->category()->setName(text("x "));
    EXPECT_FALSE(view->category()->canCommit());
    view->commitCategory();
    EXPECT_FALSE(view->category()->isShown());
    EXPECT_EQ(modeNames().size(), 6);
    EXPECT_EQ(view->modesNote(), QString());
}

TEST_F(WelcomeViewTest, ModeThatIsThereAlreadyIsTold) {
    open();
    walkTo(Modes);
    view->addCategory();
    view->category()->setName(text("design"));
    view->commitCategory();
    EXPECT_EQ(view->modesNote(), text("Design already exists"));
}

TEST_F(WelcomeViewTest, LastModeHasToStayAndMoreThanEightAreNotOffered) {
    open();
    walkTo(Modes);
    for (const char* name : {"One more", "And another"}) {
        EXPECT_TRUE(view->canAddCategory());
        view->addCategory();
        view->category()->setName(text(name));
        view->commitCategory();
    }
    EXPECT_FALSE(view->canAddCategory());
    while (view->modes()->rowCount() > 1)
        view->removeCategory(
            view->modes()->data(view->modes()->index(0), SkillListModel::SkillId).toString());
    EXPECT_FALSE(view->modes()->data(view->modes()->index(0), SkillListModel::Deletable).toBool());
}

TEST_F(WelcomeViewTest, RowIsGoneWithTheStep) {
    open();
    walkTo(Modes);
    view->addCategory();
    view->pressPrimary();
    EXPECT_EQ(view->step(), Press);
    EXPECT_FALSE(view->category()->isShown());
}

} // namespace
} // namespace vantle
