#include "review/narrative/NoteNarrative.h"

#include "fakes/FakeLanguageModel.h"
#include "fakes/VirtualTime.h"
#include "review/narrative/NarrativeText.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::Optional;

QString q(const char* text) { return QString::fromUtf8(text); }

/// "You a2 a3 ...", of so many words.
QString sentenceOf(int words, const char* word = "a") {
    QString text = q("You");
    for (int i = 2; i <= words; ++i)
        text += q(" %1%2").arg(q(word)).arg(i);
    return text;
}

class NoteNarrativeTest : public testing::Test {
protected:
    NoteNarrative::RequestHandle ask(const QStringList& notes,
                                     const std::optional<QString>& topSkill = q("Build")) {
        return m_narrative.weekly(q("3 h"), topSkill, notes, [this](std::optional<QString> text) {
            ++m_told;
            m_result = std::move(text);
        });
    }
    /// Asks about two good notes, and answers so.
    std::optional<QString> answered(const std::vector<std::optional<QString>>& answers) {
        const auto request = ask(m_notes);
        for (const auto& answer : answers)
            EXPECT_TRUE(m_model.answer(answer));
        EXPECT_EQ(m_model.waiting(), 0u);
        EXPECT_EQ(m_told, 1);
        return m_result;
    }
    std::vector<QString> prompts() const {
        std::vector<QString> texts;
        for (const auto& call : m_model.calls)
            if (!call.opens) texts.push_back(call.text);
        return texts;
    }

    const QStringList m_notes{q("Fixed the login page and its tests"),
                              q("Wrote the launch email for Monday")};
    const QString m_sentence = q("You fixed the login page and wrote the launch email.");
    fakes::VirtualTime m_time;
    fakes::FakeLanguageModel m_model;
    NoteNarrative m_narrative{m_model, m_time};
    int m_told = 0;
    std::optional<QString> m_result;
};

TEST_F(NoteNarrativeTest, PutsTheHoursAndTheTopSkillBeforeTheSentence) {
    EXPECT_THAT(answered({m_sentence}), Optional(q("3 h this week, mostly Build. ") + m_sentence));
}

TEST_F(NoteNarrativeTest, WithoutATopSkillTheHoursStandAlone) {
    const auto request = ask(m_notes, std::nullopt);
    m_model.answer(m_sentence);
    EXPECT_THAT(m_result, Optional(q("3 h this week. ") + m_sentence));
}

TEST_F(NoteNarrativeTest, TellsTheModelTheInstructionsAndTheNotes) {
    static_cast<void>(answered({m_sentence}));
    ASSERT_EQ(m_model.calls.size(), 2u);
    EXPECT_TRUE(m_model.calls[0].opens);
    EXPECT_EQ(m_model.calls[0].text, narrativetext::instructions());
    EXPECT_EQ(m_model.calls[1].text,
              q("Here are the notes they wrote after their work sessions.\n\n"
                "- Fixed the login page and its tests\n- Wrote the launch email for Monday\n\n"
                "Write the one sentence now."));
}

TEST_F(NoteNarrativeTest, NotesAreTrimmedAndEmptyOnesLeftOut) {
    const auto request = ask({q("  ") + m_notes[0] + q("\n"), q(" \n"), m_notes[1]});
    EXPECT_THAT(prompts(), ElementsAre(narrativetext::question(m_notes)));
}

TEST_F(NoteNarrativeTest, FewerThanTwoNotesOrFortyCharactersGiveNothingWithoutAsking) {
    const QString nineteen = q("a").repeated(19);
    for (const QStringList& notes :
         {QStringList(), QStringList{q("one long note ").repeated(10)},
          QStringList{q("one long note ").repeated(10), q("  ")},
          QStringList{q("ten chars."), q("ten chars.")}, QStringList{nineteen, nineteen},
          QStringList{q("  ") + nineteen, nineteen + q("  ")}}) {
        m_told = 0;
        const auto request = ask(notes);
        EXPECT_EQ(m_told, 0) << "within the call";
        m_time.advance(0);
        EXPECT_EQ(m_told, 1);
        EXPECT_EQ(m_result, std::nullopt);
    }
    EXPECT_TRUE(m_model.calls.empty());
}

TEST_F(NoteNarrativeTest, FortyCharactersAreEnoughHoweverManyUnitsTheyHave) {
    const auto request = ask({q("a").repeated(19), q("b").repeated(20)});
    EXPECT_EQ(m_model.waiting(), 1u);
    const auto pictures = ask({q("\U0001F9F1").repeated(19), q("\U0001F9F1").repeated(19)});
    EXPECT_EQ(m_model.waiting(), 1u) << "39 characters in 77 units";
}

TEST_F(NoteNarrativeTest, OnlyTheFortyNewestNotesAreSent) {
    QStringList notes;
    for (int i = 0; i < 45; ++i)
        notes += q("note number %1").arg(i);
    const auto request = ask(notes);
    EXPECT_THAT(prompts(), ElementsAre(narrativetext::question(notes.first(40))));
    EXPECT_FALSE(prompts().front().contains(q("note number 40")));
}

TEST_F(NoteNarrativeTest, ModelThatIsNotThereIsNotAsked) {
    m_model.available = false;
    EXPECT_FALSE(m_narrative.isAvailable());
    const auto request = ask(m_notes);
    m_time.advance(0);
    EXPECT_EQ(m_told, 1);
    EXPECT_EQ(m_result, std::nullopt);
    EXPECT_TRUE(m_model.calls.empty());
    m_model.available = true;
    EXPECT_TRUE(m_narrative.isAvailable());
}

TEST_F(NoteNarrativeTest, FailureGivesNothing) {
    EXPECT_EQ(answered({std::nullopt}), std::nullopt);
}

TEST_F(NoteNarrativeTest, GarbageGivesNothing) {
    for (const char* garbage : {"", "\n\n", "I can't help with that.", "{\"error\": true}",
                                "\u0000\u0007\uFFFD", "- a\n- b\n- c", "You did."}) {
        m_told = 0;
        EXPECT_EQ(answered({q(garbage)}), std::nullopt) << garbage;
    }
    m_told = 0;
    EXPECT_EQ(answered({q("You and so on ").repeated(100000)}), std::nullopt);
}

TEST_F(NoteNarrativeTest, NotesAndAColonInFrontGiveNothing) {
    EXPECT_EQ(answered({q("Notes: ") + m_sentence}), std::nullopt);
}

TEST_F(NoteNarrativeTest, OfTwoLinesThePreambleIsDropped) {
    EXPECT_THAT(answered({q("Here are the highlights:\n") + m_sentence}),
                Optional(q("3 h this week, mostly Build. ") + m_sentence));
}

TEST_F(NoteNarrativeTest, ThirtyTwoWordsAreNotAskedAgain) {
    EXPECT_TRUE(answered({sentenceOf(32)}));
    EXPECT_EQ(prompts().size(), 1u);
}

TEST_F(NoteNarrativeTest, ThirtyThreeWordsAreAskedAgainInTheSameSession) {
    EXPECT_THAT(answered({sentenceOf(33), sentenceOf(24, "b")}),
                Optional(q("3 h this week, mostly Build. ") + sentenceOf(24, "b")));
    EXPECT_THAT(prompts(), ElementsAre(narrativetext::question(m_notes),
                                       q("That was too long and listed too much. Rewrite it naming "
                                         "only the three biggest items, under 25 words, still "
                                         "starting with \"You\".")));
    EXPECT_EQ(m_model.calls.size(), 3u) << "one session";
}

TEST_F(NoteNarrativeTest, RetryThatIsNotShorterLeavesTheFirstAnswer) {
    for (const int words : {33, 36, 40})
        for (const int retry : {words, words + 1}) {
            m_told = 0;
            EXPECT_THAT(answered({sentenceOf(words), sentenceOf(retry, "b")}),
                        Optional(q("3 h this week, mostly Build. ") + sentenceOf(words)));
        }
}

TEST_F(NoteNarrativeTest, RetryThatIsNoSentenceLeavesTheFirstAnswer) {
    EXPECT_THAT(answered({sentenceOf(40), q("- You listed it all")}),
                Optional(q("3 h this week, mostly Build. ") + sentenceOf(40)));
    m_told = 0;
    EXPECT_EQ(answered({sentenceOf(41), q("- You listed it all")}), std::nullopt);
}

TEST_F(NoteNarrativeTest, MoreThanFortyWordsInTheEndGiveNothing) {
    EXPECT_EQ(answered({sentenceOf(45), sentenceOf(45, "b")}), std::nullopt);
    m_told = 0;
    EXPECT_EQ(answered({sentenceOf(45), sentenceOf(41, "b")}), std::nullopt);
    m_told = 0;
    EXPECT_TRUE(answered({sentenceOf(45), sentenceOf(40, "b")}));
}

TEST_F(NoteNarrativeTest, RetryThatFailsLosesTheFirstAnswerToo) {
    EXPECT_EQ(answered({sentenceOf(33), std::nullopt}), std::nullopt);
}

TEST_F(NoteNarrativeTest, ModelThatNeverAnswersLeavesNothingBehindWhenThePeriodChanges) {
    auto request = ask(m_notes);
    m_time.advance(86400);
    EXPECT_EQ(m_model.waiting(), 1u);
    request.reset(); // the user turned to another period
    EXPECT_EQ(m_model.openSessions(), 0);
    EXPECT_FALSE(m_model.answer(m_sentence)) << "nobody is there to hear it";
    EXPECT_EQ(m_told, 0);
}

TEST_F(NoteNarrativeTest, PeriodCanChangeWhileTheAnswerIsAskedAgain) {
    auto request = ask(m_notes);
    m_model.answer(sentenceOf(36));
    request.reset();
    EXPECT_FALSE(m_model.answer(m_sentence));
    EXPECT_EQ(m_told, 0);
}

TEST_F(NoteNarrativeTest, DroppedRequestIsNotAnswered) {
    auto request = ask({});
    request.reset();
    m_time.advance(1);
    EXPECT_EQ(m_told, 0);
}

TEST_F(NoteNarrativeTest, RequestMayBeDroppedWithinItsAnswer) {
    NoteNarrative::RequestHandle request;
    int told = 0;
    request = m_narrative.weekly(q("3 h"), std::nullopt, m_notes, [&](std::optional<QString>) {
        ++told;
        request.reset();
    });
    m_model.answer(m_sentence);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(m_model.openSessions(), 0);
    request = m_narrative.weekly(q("3 h"), std::nullopt, {}, [&](std::optional<QString>) {
        ++told;
        request.reset();
    });
    m_time.advance(0);
    EXPECT_EQ(told, 2);
}

TEST_F(NoteNarrativeTest, TwoPeriodsCanBeAskedAboutAtOnce) {
    auto first = ask(m_notes);
    const auto second = ask({m_notes[1], m_notes[0]});
    EXPECT_EQ(m_model.openSessions(), 2);
    first.reset();
    EXPECT_TRUE(m_model.answer(m_sentence));
    EXPECT_EQ(m_told, 1);
}

} // namespace
} // namespace vantle
