#include "review/narrative/NarrativeText.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace vantle::narrativetext {
namespace {

const QString kSentence = QStringLiteral("You shipped the login page and wrote the launch email.");

QString q(const char* text) { return QString::fromUtf8(text); }

/// What tidy makes of the text; "nothing" for nothing.
QString tidied(const QString& text) { return tidy(text).value_or(q("nothing")); }

TEST(NarrativeText, TakesTheSentenceAsItIs) { EXPECT_EQ(tidied(kSentence), kSentence); }

TEST(NarrativeText, DropsPreamblesListsAndHeadingsWhateverTheirCase) {
    for (const char* line : {"- an item", "* an item", "# Heading", "Here are the highlights:",
                             "NOTES: none", "sentence:", "Recap: so", "Output:", "", "   "}) {
        EXPECT_EQ(tidied(q(line) + q("\n") + kSentence), kSentence) << line;
        EXPECT_EQ(tidied(kSentence + q("\n\t ") + q(line)), kSentence) << line;
    }
}

TEST(NarrativeText, AnswerBehindAPreambleOnItsOwnLineIsDroppedWhole) {
    EXPECT_EQ(tidied(q("Notes: ") + kSentence), q("nothing"));
}

TEST(NarrativeText, DashWithinALineStays) {
    EXPECT_EQ(tidied(q("You shipped - finally - the login page.")),
              q("You shipped - finally - the login page."));
}

TEST(NarrativeText, EveryNewlineEndsALine) {
    for (const char* newline : {"\n", "\r\n", "\r", "\v", "\f", "\u0085", "\u2028", "\u2029"})
        EXPECT_EQ(tidied(q("You shipped the login page") + q(newline) + q("- item") + q(newline) +
                         q("and the email.")),
                  q("You shipped the login page and the email."));
}

TEST(NarrativeText, RunsOfBlanksBecomeOneAndOtherSpacesStay) {
    EXPECT_EQ(tidied(q("  You   shipped     the login page.  ")), q("You shipped the login page."));
    EXPECT_EQ(tidied(q("You\u00A0\u00A0shipped the login page.")),
              q("You\u00A0\u00A0shipped the login page."));
}

TEST(NarrativeText, LengthIsBetween20And260CharactersAsPeopleCountThem) {
    const auto sentence = [](int characters, const char* filling) {
        return q("You") + q(filling).repeated(characters - 3);
    };
    for (const char* filling : {"a", "e\u0301", "\U0001F468\u200D\U0001F469\u200D\U0001F467"}) {
        EXPECT_EQ(tidied(sentence(19, filling)), q("nothing"));
        EXPECT_EQ(tidied(sentence(20, filling)), sentence(20, filling));
        EXPECT_EQ(tidied(sentence(260, filling)), sentence(260, filling));
        EXPECT_EQ(tidied(sentence(261, filling)), q("nothing"));
    }
}

TEST(NarrativeText, StartsWithYouInThisCase) {
    EXPECT_EQ(tidied(q("you shipped the login page today.")), q("nothing"));
    EXPECT_EQ(tidied(q("We shipped the login page today.")), q("nothing"));
    EXPECT_EQ(tidied(q("Your login page shipped this week.")),
              q("Your login page shipped this week."));
}

TEST(NarrativeText, AnswerWithoutASentenceGivesNothing) {
    EXPECT_EQ(tidied(QString()), q("nothing"));
    EXPECT_EQ(tidied(q("- a\n* b\n# c\n")), q("nothing"));
    EXPECT_EQ(tidied(QString(QChar(0xD83E)).repeated(40)), q("nothing")) << "lone surrogates";
}

TEST(NarrativeText, CountsWordsBetweenWhiteSpaceOfEveryKind) {
    EXPECT_EQ(wordCount(QString()), 0);
    EXPECT_EQ(wordCount(q(" \n ")), 0);
    EXPECT_EQ(wordCount(q("one")), 1);
    EXPECT_EQ(wordCount(q(" don't  re-count\tthese\u00A0four ")), 4);
}

TEST(NarrativeText, AsksAboutTheFirstFortyNotes) {
    QStringList notes;
    for (int i = 1; i <= 41; ++i)
        notes += q("note %1").arg(i);
    const QString asked = question(notes);
    EXPECT_TRUE(asked.contains(q("\n\n- note 1\n- note 2\n")));
    EXPECT_TRUE(asked.endsWith(q("\n- note 40\n\nWrite the one sentence now.")));
}

RC_GTEST_PROP(NarrativeText, TidyingTwiceIsTidyingOnce, ()) {
    const auto piece = rc::gen::element<std::string>("You", "you", " ", "  ", "\n", "- ", "# ",
                                                     "Here are", "notes:", "\u00A0", "\r\n",
                                                     "shipped", "the login page", "e\u0301", ".");
    QString answer = *rc::gen::element(q(""), q("You shipped the login page"));
    for (const std::string& next : *rc::gen::container<std::vector<std::string>>(piece))
        answer += QString::fromStdString(next);
    const auto once = tidy(answer);
    RC_CLASSIFY(once.has_value());
    if (!once) return;
    RC_ASSERT(tidy(*once) == once);
    RC_ASSERT(!once->contains(q("  ")));
    RC_ASSERT(!once->contains(QLatin1Char('\n')));
}

} // namespace
} // namespace vantle::narrativetext
