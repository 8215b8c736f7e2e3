#include "surfaces/cards/TagPromptController.h"

#include "support/Text.h"
#include "surfaces/cards/CardWorld.h"
#include "surfaces/cards/CorrectionPromptModel.h"
#include "surfaces/cards/StopSummaryController.h"
#include "surfaces/cards/TagPromptModel.h"

#include <QColor>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using Outcome = collaborators::TagPrompt::Outcome;

class TagPromptTest : public testing::Test, protected CardWorld {
protected:
    bool ask(const char* app = "Blender", bool isCounting = true, bool isBrowser = false) {
        return controller.show(text(app), skills.all(), isCounting, isBrowser,
                               [this](const Outcome& outcome) { outcomes << named(outcome); });
    }
    bool askCorrection() {
        return controller.showCorrection(
            text("Blender"), skills.by(text("product_design")),
            [this](bool always) { outcomes << (always ? text("always") : text("no")); });
    }
    static QString named(const Outcome& outcome) {
        switch (outcome.kind) {
        case Outcome::Kind::Tagged:
            return outcome.skillId;
        case Outcome::Kind::Ignore:
            return text("ignore");
        case Outcome::Kind::Dismiss:
            return text("dismiss");
        }
        Q_UNREACHABLE();
    }
    [[nodiscard]] TagPromptModel* prompt() const {
        return stage.modelOf<TagPromptModel>(CardView::TagPrompt);
    }
    [[nodiscard]] CorrectionPromptModel* correction() const {
        return stage.modelOf<CorrectionPromptModel>(CardView::CorrectionPrompt);
    }

    TagPromptController controller{environment};
    QStringList outcomes;
};

TEST_F(TagPromptTest, TheQuestionDependsOnWhatTheApplicationIsAndWhetherTimeCounts) {
    ASSERT_TRUE(ask("Blender", true, false));
    EXPECT_EQ(prompt()->headline(), text("Counting time in Blender"));
    EXPECT_EQ(prompt()->subtitle(), text("Which skill is this?"));
    EXPECT_EQ(prompt()->ignoreText(), text("Ignore this app"));
    EXPECT_EQ(prompt()->ignoreHelp(), text("Auto mode never reacts to this app"));

    ASSERT_TRUE(ask("Blender", false, false));
    EXPECT_EQ(prompt()->headline(), text("Count Blender toward a skill?"));
    EXPECT_EQ(prompt()->subtitle(), text("Auto mode remembers your choice."));

    for (const bool isCounting : {false, true}) {
        ASSERT_TRUE(ask("Firefox", isCounting, true));
        EXPECT_EQ(prompt()->headline(), text("What is Firefox usually?"));
        EXPECT_EQ(prompt()->subtitle(),
                  text("A browser can be anything; pick its usual job or keep it flexible."));
        EXPECT_EQ(prompt()->ignoreText(), text("Keep it flexible"));
        EXPECT_EQ(prompt()->ignoreHelp(),
                  text("Auto mode never guesses for this browser; switch categories from the "
                       "notch any time"));
    }
}

TEST_F(TagPromptTest, EachSkillIsOfferedWithItsColour) {
    ASSERT_TRUE(ask());
    const SkillChoices& choices = *prompt()->choices();
    ASSERT_EQ(choices.rowCount(), 6);
    EXPECT_EQ(choices.data(choices.index(1), SkillChoices::NameRole).toString(), text("Design"));
    EXPECT_EQ(choices.data(choices.index(1), SkillChoices::ColorRole).value<QColor>(),
              QColor::fromRgb(0xBF5AF2));
}

TEST_F(TagPromptTest, AnAnswerIsHandedOverOnceAndTheCardGoes) {
    ASSERT_TRUE(ask());
    const auto kept = stage.up(CardView::TagPrompt)->model;
    auto* const card = prompt();
    card->pick(1);
    EXPECT_EQ(outcomes, QStringList(text("product_design")));
    EXPECT_EQ(prompt(), nullptr);
    EXPECT_FALSE(slot.holder());
    card->pick(0); // a click while the card fades
    time.advance(60);
    EXPECT_EQ(outcomes.size(), 1);
}

TEST_F(TagPromptTest, TheOtherAnswers) {
    ASSERT_TRUE(ask());
    prompt()->ignore();
    ASSERT_TRUE(ask());
    prompt()->dismiss();
    EXPECT_EQ(outcomes, QStringList({text("ignore"), text("dismiss")}));
}

TEST_F(TagPromptTest, LeftAloneItIsDismissedAfterFifteenSeconds) {
    ASSERT_TRUE(ask());
    time.advance(14.9);
    EXPECT_NE(prompt(), nullptr);
    time.advance(0.2);
    EXPECT_EQ(prompt(), nullptr);
    EXPECT_EQ(outcomes, QStringList(text("dismiss")));
}

TEST_F(TagPromptTest, TheTimeOutEndsAtTheFirstTouchNotAtTheAnswer) {
    ASSERT_TRUE(ask());
    std::size_t timersAtAnswer = 99;
    QObject::connect(prompt(), &TagPromptModel::resolved, prompt(),
                     [&] { timersAtAnswer = time.timerCount(); });
    Q_EMIT prompt()->interacted();
    time.advance(60);
    ASSERT_NE(prompt(), nullptr);
    prompt()->pick(0);
    EXPECT_EQ(timersAtAnswer, 0u);
}

TEST_F(TagPromptTest, ASecondQuestionDismissesTheFirst) {
    ASSERT_TRUE(ask("Blender"));
    ASSERT_TRUE(ask("Firefox", true, true));
    EXPECT_EQ(outcomes, QStringList(text("dismiss")));
    EXPECT_EQ(prompt()->headline(), text("What is Firefox usually?"));
    EXPECT_EQ(stage.panels.size(), 1u);
    time.advance(16);
    EXPECT_EQ(outcomes, QStringList({text("dismiss"), text("dismiss")}));
}

TEST_F(TagPromptTest, ACardPushedOutOfTheCornerCountsAsDismissed) {
    StopSummaryController summary(environment);
    ASSERT_TRUE(ask());
    summary.show({.session = session(60)}, {});
    EXPECT_EQ(prompt(), nullptr);
    EXPECT_EQ(outcomes, QStringList(text("dismiss")));
    time.advance(60);
    EXPECT_EQ(prompt(), nullptr) << "it does not come back";
    EXPECT_EQ(outcomes.size(), 1);
}

TEST_F(TagPromptTest, UnderAMoreImportantCardNothingIsAsked) {
    StopSummaryController summary(environment);
    summary.show({.session = session(60)}, {});
    EXPECT_FALSE(ask());
    EXPECT_FALSE(askCorrection());
    EXPECT_TRUE(outcomes.isEmpty()) << "a question that was not taken gets no answer";
    EXPECT_FALSE(slot.hasQueued());
}

TEST_F(TagPromptTest, WithoutAScreenNothingIsAsked) {
    stage.screen.reset();
    EXPECT_FALSE(ask());
    EXPECT_FALSE(slot.holder());
    EXPECT_EQ(time.timerCount(), 0u);
}

TEST_F(TagPromptTest, TheCorrectionAsksWhetherAChoiceBecomesTheRule) {
    ASSERT_TRUE(askCorrection());
    EXPECT_EQ(correction()->question(), text("Always count Blender as Design?"));
    EXPECT_EQ(correction()->noHelp(), text("Keeps Auto mode as it is"));
    EXPECT_EQ(correction()->alwaysHelp(), text("Auto mode counts Blender as Design from now on"));
    correction()->accept();
    ASSERT_TRUE(askCorrection());
    correction()->decline();
    EXPECT_EQ(outcomes, QStringList({text("always"), text("no")}));
}

TEST_F(TagPromptTest, ACorrectionWithoutAnAnswerIsANo) {
    ASSERT_TRUE(askCorrection());
    time.advance(15.1);
    ASSERT_TRUE(askCorrection());
    slot.takeForSummary(&outcomes, [] {});
    EXPECT_EQ(outcomes, QStringList({text("no"), text("no")}));
    EXPECT_EQ(correction(), nullptr);
}

TEST_F(TagPromptTest, AnAnswerMayLeadToTheNextQuestion) {
    bool asked = false;
    ASSERT_TRUE(controller.show(text("Blender"), skills.all(), true, false,
                                [&](const Outcome&) { asked = askCorrection(); }));
    prompt()->pick(0);
    EXPECT_TRUE(asked);
    EXPECT_EQ(prompt(), nullptr);
}

TEST_F(TagPromptTest, EachAnswerOfThePromptCanBeGivenInThePanel) {
    QStringList given;
    for (const auto& skill : skills.all())
        given << skill.id;
    given << text("ignore") << text("dismiss");
    for (qsizetype i = 0; i < given.size(); ++i) {
        ASSERT_TRUE(ask());
        EXPECT_EQ(openQuestion().text, text("Counting time in Blender\nWhich skill is this?"));
        ASSERT_EQ(openQuestion().answers.size(), static_cast<std::size_t>(given.size()));
        const auto chosen = openQuestion().answers[static_cast<std::size_t>(i)];
        chosen.give();
        EXPECT_EQ(outcomes.last(), given[i]);
        EXPECT_EQ(prompt(), nullptr);
        EXPECT_TRUE(questions.all().empty());
        chosen.give(); // the card is gone
        EXPECT_EQ(outcomes.size(), i + 1);
    }
}

TEST_F(TagPromptTest, CorrectionIsAnsweredInThePanel) {
    ASSERT_TRUE(askCorrection());
    answer(text("Always"));
    ASSERT_TRUE(askCorrection());
    answer(text("No"));
    EXPECT_EQ(outcomes, QStringList({text("always"), text("no")}));
}

TEST_F(TagPromptTest, QuestionThatTimesOutLeavesThePanel) {
    ASSERT_TRUE(ask());
    time.advance(16);
    EXPECT_TRUE(questions.all().empty());
}

} // namespace
} // namespace vantle::tests
