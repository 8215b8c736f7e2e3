#include "review/stats/NoteDigest.h"

#include "base/Text.h"
#include "support/QtPrinters.h"
#include "tracking/Samples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

/// Sessions with these notes, the newest first.
std::vector<Session> noted(const QStringList& newestFirst) {
    std::vector<Session> sessions;
    for (const QString& note : newestFirst) {
        sessions.push_back(samples::session(1000000 - static_cast<int>(sessions.size())));
        sessions.back().note = note;
    }
    return sessions;
}

std::optional<WrappedNoteDigest> digestOf(const std::vector<Session>& sessions) {
    return WrappedNoteDigest::compute(refsTo(sessions), samples::seeds());
}

WrappedNoteDigest digestOf(const QStringList& newestFirst) {
    return digestOf(noted(newestFirst)).value_or(WrappedNoteDigest());
}

QStringList themes(std::initializer_list<const char*> newestFirst) {
    QStringList notes;
    for (const char* note : newestFirst)
        notes += q(note);
    return digestOf(notes).themes;
}

QStringList list(std::initializer_list<const char*> texts) {
    QStringList result;
    for (const char* text : texts)
        result += q(text);
    return result;
}

QStringList highlightTexts(const WrappedNoteDigest& digest) {
    QStringList texts;
    for (const auto& highlight : digest.highlights)
        texts += highlight.text;
    return texts;
}

TEST(NoteDigest, SessionsWithoutTextInTheirNotesHaveNone) {
    EXPECT_EQ(digestOf(std::vector<Session>()), std::nullopt);
    EXPECT_EQ(digestOf(noted(list({"", "  ", "\n\t\u00A0\u3000"}))), std::nullopt);
}

TEST(NoteDigest, LineBreaksAndRunsOfBlanksVanish) {
    const auto digest = digestOf(list({" fixed\r\n the \t\u2003login ", "", "next"}));
    EXPECT_EQ(digest.allNotes, list({"fixed the login", "next"}));
    EXPECT_EQ(digest.noteCount, 2);
    EXPECT_EQ(highlightTexts(digest), digest.allNotes);
}

TEST(NoteDigest, NotesStandNewestFirstInWhateverOrderTheyCome) {
    std::vector<Session> sessions = noted(list({"three", "two", "one"}));
    EXPECT_EQ(digestOf(sessions)->allNotes, list({"three", "two", "one"}));
    std::ranges::reverse(sessions);
    EXPECT_EQ(digestOf(sessions)->allNotes, list({"three", "two", "one"}));
    std::swap(sessions[0], sessions[1]);
    EXPECT_EQ(digestOf(sessions)->allNotes, list({"three", "two", "one"}));
}

TEST(NoteDigest, NotesOfOneMomentStandByTheTextOfTheirIds) {
    std::vector<Session> sessions = noted(list({"d", "c", "b", "a"}));
    // The third and fourth part of an id tell its variant, by which the ids' own order goes.
    const char* const ids[] = {
        "FFFFFFFF-0000-4000-8000-000000000000", "10000000-0000-4000-F000-000000000000",
        "10000000-0000-4000-8000-000000000001", "0FFFFFFF-FFFF-4FFF-BFFF-FFFFFFFFFFFF"};
    for (std::size_t i = 0; i < sessions.size(); ++i) {
        sessions[i].id = QUuid::fromString(q(ids[i]));
        sessions[i].endedAt = samples::morning();
    }
    EXPECT_EQ(digestOf(sessions)->allNotes, list({"a", "b", "c", "d"}));
}

TEST(NoteDigest, WordInTwoNotesIsATheme) {
    EXPECT_EQ(themes({"webhook", "new webhook"}), list({"webhook"}));
}

TEST(NoteDigest, WordTwiceInOneNoteIsNone) {
    EXPECT_EQ(themes({"webhook webhook Webhook", "launch"}), QStringList());
}

TEST(NoteDigest, WordInBothCasesCountsOnceANote) {
    EXPECT_EQ(themes({"api API Api", "launch", "launch", "launch"}), list({"launch"}));
}

TEST(NoteDigest, FormMetFirstIsShown) {
    EXPECT_EQ(themes({"API then api", "api"}), list({"API"}));
    EXPECT_EQ(themes({"api then API", "API"}), list({"api"}));
    EXPECT_EQ(themes({"API", "api"}), list({"API"}));
    EXPECT_EQ(themes({"api", "API"}), list({"api"}));
}

TEST(NoteDigest, DigitsAloneAreNoTheme) {
    EXPECT_EQ(themes({"2026 plan 12345", "2026 12345"}), QStringList());
    EXPECT_EQ(themes({"\u0661\u0662\u0663 \u00B2\u00B3\u00B9 \u4E00\u4E8C\u4E09",
                      "\u0661\u0662\u0663 \u00B2\u00B3\u00B9 \u4E00\u4E8C\u4E09"}),
              QStringList())
        << "of whatever script";
}

TEST(NoteDigest, TwoCharactersAreNoThemeAndThreeWithALetterAre) {
    EXPECT_EQ(
        themes({"ui ux v2 e\u0301e\u0301 \u6771\u4EAC", "ui ux v2 e\u0301e\u0301 \u6771\u4EAC"}),
        QStringList())
        << "also where they have more units";
    EXPECT_EQ(themes({"v12 1a2", "v12 1a2"}), list({"1a2", "v12"}));
}

TEST(NoteDigest, ApostropheSplitsAWordAndItsFirstPartCanBeATheme) {
    EXPECT_EQ(themes({"don't ship", "don\u2019t ship"}), list({"don", "ship"}));
    EXPECT_EQ(themes({"I'm o'clock", "I'm o'clock"}), list({"clock"}));
}

TEST(NoteDigest, AccentedLettersStayInTheWord) {
    EXPECT_EQ(themes({"caf\u00E9 Caf\u00E9s", "CAF\u00C9"}), list({"caf\u00E9"}));
    EXPECT_EQ(themes({"cafe\u0301s", "cafe\u0301s"}), list({"cafe\u0301s"}))
        << "however they are composed";
}

TEST(NoteDigest, EmojiSplitWords) {
    EXPECT_EQ(themes({"launch\U0001F680page", "launch\U0001F680page"}), list({"launch", "page"}));
    const char* const family = "\U0001F468\u200D\U0001F469\u200D\U0001F467 \U0001F1E9\U0001F1EA";
    EXPECT_EQ(themes({family, family}), QStringList());
}

TEST(NoteDigest, OtherScriptsAreWordsToo) {
    EXPECT_EQ(
        themes({"\u041F\u0440\u0438\u0432\u0435\u0442", "\u043F\u0440\u0438\u0432\u0435\u0442"}),
        list({"\u043F\u0440\u0438\u0432\u0435\u0442"}));
    EXPECT_EQ(themes({"\u6771\u4EAC\u99C5\u3001", "\u6771\u4EAC\u99C5"}),
              list({"\u6771\u4EAC\u99C5"}));
    EXPECT_EQ(themes({"\u0915\u0935\u093F\u0924\u093E", "\u0915\u0935\u093F\u0924\u093E"}),
              list({"\u0915\u0935\u093F\u0924\u093E"}))
        << "vowel signs are marks";
}

TEST(NoteDigest, UpperCaseOfSixCharactersIsAnAcronymAndOfSevenIsNot) {
    EXPECT_EQ(themes({"ABCDEF ABCDEFG", "ABCDEF ABCDEFG"}), list({"ABCDEF", "abcdefg"}));
    EXPECT_EQ(themes({"\u00C9T\u00C9 E\u0301E\u0301E\u0301E\u0301",
                      "\u00C9T\u00C9 E\u0301E\u0301E\u0301E\u0301"}),
              list({"E\u0301E\u0301E\u0301E\u0301", "\u00C9T\u00C9"}))
        << "by characters, not by units";
}

TEST(NoteDigest, MixedCaseIsShownInLowerCase) {
    EXPECT_EQ(themes({"GitHub Stripe iOS", "GitHub Stripe iOS"}),
              list({"github", "ios", "stripe"}));
    EXPECT_EQ(themes({"STRA\u00DFE", "STRA\u00DFE"}), list({"stra\u00DFe"}))
        << "its upper case is STRASSE";
}

TEST(NoteDigest, WordsThatEveryNoteHasAreNoThemes) {
    EXPECT_EQ(themes({"Today I worked with the session", "TODAY i WORKED WITH THE SESSION"}),
              QStringList());
}

TEST(NoteDigest, MoreFrequentWordsComeFirst) {
    EXPECT_EQ(themes({"alpha", "bravo", "bravo alpha", "bravo"}), list({"bravo", "alpha"}));
}

TEST(NoteDigest, OfEquallyFrequentWordsTheOneInTheNewerNoteComesFirst) {
    EXPECT_EQ(themes({"zulu", "alpha", "alpha zulu"}), list({"zulu", "alpha"}));
}

TEST(NoteDigest, OfWordsFirstMetInOneNoteTheSmallerComesFirst) {
    EXPECT_EQ(themes({"zulu alpha", "alpha zulu"}), list({"alpha", "zulu"}));
    EXPECT_EQ(themes({"ZULU ALPHA", "alpha zulu"}), list({"ALPHA", "ZULU"}));
    EXPECT_EQ(themes({"\U00010400\U00010400x \uFF21\uFF22\uFF23",
                      "\U00010400\U00010400x \uFF41\uFF42\uFF43"}),
              list({"\uFF21\uFF22\uFF23", "\U00010428\U00010428x"}))
        << "by code points";
}

TEST(NoteDigest, ThreeThemesAreTheMost) {
    EXPECT_EQ(themes({"delta charlie bravo alpha", "alpha bravo charlie delta"}),
              list({"alpha", "bravo", "charlie"}));
}

TEST(NoteDigest, NotesThatDifferInCaseAloneAreOneHighlightAndStillTwoNotes) {
    const auto digest = digestOf(list({"Fix API", "fix api", "ship"}));
    EXPECT_EQ(highlightTexts(digest), list({"Fix API", "ship"}));
    EXPECT_EQ(digest.noteCount, 3);
    EXPECT_EQ(digest.allNotes, list({"Fix API", "fix api", "ship"}));
}

TEST(NoteDigest, FourHighlightsAreTheMost) {
    EXPECT_EQ(highlightTexts(digestOf(list({"a", "b", "A", "c", "d"}))),
              list({"a", "b", "c", "d"}));
    EXPECT_EQ(highlightTexts(digestOf(list({"a", "b", "A", "c", "d", "e", "f"}))),
              list({"a", "b", "c", "d"}));
}

TEST(NoteDigest, HighlightTellsSessionSkillAndEnd) {
    std::vector<Session> sessions = noted(list({"newer", "older"}));
    sessions[1].skillId = q("deep_work"); // deleted since
    const auto digest = digestOf(sessions);
    const WrappedNoteDigest::Highlight newer{sessions[0].id, q("newer"), Skill::defaults().front(),
                                             sessions[0].endedAt};
    EXPECT_EQ(digest->highlights.at(0), newer);
    EXPECT_EQ(digest->highlights.at(1).skill.name, q("Deep Work"));
    EXPECT_EQ(digest->highlights.at(1).skill.hexRGB, 0x8E8E93u);
}

TEST(NoteDigest, StoryLineNamesTheThemes) {
    const auto story = [](const QStringList& words) {
        WrappedNoteDigest digest;
        digest.noteCount = 9;
        digest.themes = words;
        return digest.storyLine();
    };
    EXPECT_EQ(story(list({"API"})), q("Your notes kept returning to API."));
    EXPECT_EQ(story(list({"API", "login"})), q("Your notes kept returning to API and login."));
    EXPECT_EQ(story(list({"API", "login", "page"})),
              q("Your notes kept returning to API, login, and page."));
}

TEST(NoteDigest, StoryLineWithoutThemesTellsHowManyNotesThereWere) {
    EXPECT_EQ(digestOf(list({"one"})).storyLine(),
              q("You captured one concrete moment that moved the work forward."));
    EXPECT_EQ(digestOf(list({"one", "two"})).storyLine(),
              q("You left a trail of 2 moments that moved the work forward."));
}

TEST(NoteDigest, TenThousandNotes) {
    QStringList notes;
    for (int i = 0; i < 10000; ++i) {
        QString note = q("entry%1 v%2").arg(i).arg(i % 1000 + 1000);
        if (i % 2 == 1) note += q(" release");
        if (i % 4 == 1) note += q("  LOGIN\n");
        notes += note;
    }
    const auto digest = digestOf(notes);
    EXPECT_EQ(digest.noteCount, 10000);
    EXPECT_EQ(digest.allNotes.size(), 10000);
    EXPECT_EQ(digest.allNotes[1], q("entry1 v1001 release LOGIN"));
    EXPECT_EQ(digest.themes, list({"release", "LOGIN", "v1000"}));
    EXPECT_EQ(highlightTexts(digest), digest.allNotes.first(4));
}

TEST(NoteDigest, TenThousandNotesOfOneMomentAndOneWord) {
    std::vector<Session> sessions = noted(QStringList(10000, q("same")));
    for (Session& session : sessions)
        session.endedAt = samples::morning();
    const auto digest = digestOf(sessions);
    EXPECT_EQ(digest->themes, list({"same"}));
    EXPECT_EQ(digest->highlights.size(), 1u);
    EXPECT_EQ(digest->highlights[0].sessionId, samples::id(1000000 - 9999));
}

} // namespace
} // namespace vantle
