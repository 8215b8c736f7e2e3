#include "base/Text.h"

#include "support/QtPrinters.h"

#include <QStringList>

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

namespace vantle::text {
namespace {

const QString kFamily = QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467"); // one picture
const QString kBrick = QStringLiteral("\U0001F9F1");
const QString kFlag = QStringLiteral("\U0001F1E9\U0001F1EA");
const QString kEAcute = QStringLiteral("e\u0301");

QString loneSurrogate() { return QString(QChar(0xD83E)); }

/// Texts of letters, marks, surrogates alone and in pairs, joiners and white space.
rc::Gen<QString> anyText() {
    const auto unit =
        rc::gen::oneOf(rc::gen::inRange<int>(0, 0x250), rc::gen::inRange<int>(0x300, 0x370),
                       rc::gen::inRange<int>(0xD800, 0xE000), rc::gen::inRange<int>(0x1100, 0x1200),
                       rc::gen::element(0x200D, 0x3000, 0x2028, 0xFE0F, 0x0130, 0x00DF, 0x03A3));
    return rc::gen::map(rc::gen::container<std::vector<int>>(unit), [](const std::vector<int>& us) {
        QString text;
        for (const int u : us)
            text += QChar(static_cast<char16_t>(u));
        return text;
    });
}

TEST(Text, DecodesALeadingByteOrderMarkAsACharacter) {
    const QString mark(QChar(0xFEFF));
    EXPECT_EQ(fromUtf8("abc"), QStringLiteral("abc"));
    EXPECT_EQ(fromUtf8("\xEF\xBB\xBF"), mark);
    EXPECT_EQ(fromUtf8("\xEF\xBB\xBF\xEF\xBB\xBFz"), mark + mark + QLatin1Char('z'));
}

TEST(Text, CountsCharactersAsPeopleSeeThem) {
    EXPECT_EQ(characterCount(u""), 0);
    EXPECT_EQ(characterCount(u"abc"), 3);
    EXPECT_EQ(characterCount(kEAcute), 1);
    EXPECT_EQ(characterCount(kBrick), 1);
    EXPECT_EQ(characterCount(kFamily), 1);
    EXPECT_EQ(characterCount(kFlag + kFlag), 2);
    EXPECT_EQ(characterCount(u"\r\n"), 1);
    EXPECT_EQ(characterCount(u"\n\r"), 2);
    EXPECT_EQ(characterCount(u"\u1112\u1161\u11AB"), 1) << "a syllable of three letters";
    EXPECT_EQ(characterCount(loneSurrogate() + QLatin1Char('a')), 2);
}

TEST(Text, ComparesALengthWithoutCountingUnits) {
    EXPECT_TRUE(hasAtMost(u"", 0));
    EXPECT_TRUE(hasAtMost(u"abc", 3));
    EXPECT_FALSE(hasAtMost(u"abcd", 3));
    EXPECT_TRUE(hasAtMost(QString(kFamily).repeated(20), 20));
    EXPECT_FALSE(hasAtMost(QString(kFamily).repeated(21), 20));
}

TEST(Text, CutsBetweenCharactersOnly) {
    EXPECT_EQ(firstCharacters(QStringLiteral("abcd"), 3), QStringLiteral("abc"));
    EXPECT_EQ(firstCharacters(QStringLiteral("abc"), 3), QStringLiteral("abc"));
    EXPECT_EQ(firstCharacters(QStringLiteral("abc"), 0), QString());
    EXPECT_EQ(firstCharacters(kFamily + kFlag + kBrick, 2), kFamily + kFlag);
    EXPECT_EQ(firstCharacters(QStringLiteral("x") + kEAcute + kEAcute, 2),
              QStringLiteral("x") + kEAcute);
    EXPECT_EQ(firstCharacters(kFamily + kFlag, 5), kFamily + kFlag);
}

TEST(Text, TrimsEveryKindOfWhiteSpaceAndNothingElse) {
    const QString white = QStringLiteral(" \t\n\v\f\r\u0085\u00A0\u1680\u2003\u2028\u2029\u202F"
                                         "\u205F\u3000");
    EXPECT_EQ(trimmed(white + QStringLiteral("a b") + white), QStringLiteral("a b"));
    EXPECT_EQ(trimmed(white), QString());
    EXPECT_EQ(trimmed(QString()), QString());
    EXPECT_EQ(trimmed(QStringLiteral("\u200Ba\u200B")), QStringLiteral("\u200Ba\u200B"))
        << "a zero width space is no white space";
    EXPECT_EQ(trimmed(QLatin1Char(' ') + kBrick + QLatin1Char(' ')), kBrick);
}

TEST(Text, PutsSingleBlanksBetweenPieces) {
    EXPECT_EQ(withSingleBlanks(QStringLiteral("  a \n\t b\u00A0\u3000c\r\n")),
              QStringLiteral("a b c"));
    EXPECT_EQ(withSingleBlanks(QStringLiteral(" \n ")), QString());
    EXPECT_EQ(withSingleBlanks(QStringLiteral("a")), QStringLiteral("a"));
    EXPECT_EQ(withSingleBlanks(QStringLiteral("a\u00A0b")), QStringLiteral("a b"));
    EXPECT_EQ(withSingleBlanks(QStringLiteral("a b ")), QStringLiteral("a b"));
    EXPECT_EQ(withSingleBlanks(QStringLiteral(" a")), QStringLiteral("a"));
    EXPECT_EQ(withSingleBlanks(kBrick + QStringLiteral("  ") + kFamily),
              kBrick + QLatin1Char(' ') + kFamily);
}

TEST(Text, FoldsCaseAndDiacriticsAway) {
    const auto folded = [](const char16_t* text) {
        return foldedCaseAndDiacritics(QString::fromUtf16(text)).toStdString();
    };
    EXPECT_EQ(folded(u"\u00C5ngstr\u00F6m"), "angstrom");
    EXPECT_EQ(folded(u"A\u030Angstro\u0308m"), "angstrom") << "however it is composed";
    EXPECT_EQ(folded(u"Stra\u00DFe"), "strasse");
    EXPECT_EQ(folded(u"\u0130stanbul"), "istanbul");
    EXPECT_EQ(folded(u"I"), "i") << "also for Turkish people";
    EXPECT_EQ(folded(u"\uD55C\uAE00"), "\uD55C\uAE00") << "syllables stay composed";
    EXPECT_EQ(folded(u"\u00D8re"), "\u00F8re") << "a letter of its own";
    EXPECT_EQ(folded(u""), "");
}

TEST(Text, LowerCasesWithoutALocale) {
    EXPECT_EQ(lowerCased(QStringLiteral("ISTANBUL")), QStringLiteral("istanbul"));
    EXPECT_EQ(lowerCased(QStringLiteral("\u00C9COLE")), QStringLiteral("\u00E9cole"));
    EXPECT_EQ(lowerCased(QStringLiteral("\u039F\u03A3 \u03A3\u039F")),
              QStringLiteral("\u03BF\u03C2 \u03C3\u03BF"))
        << "a sigma at the end of a word has its own form";
    EXPECT_EQ(lowerCased(QStringLiteral("\u0130")), QStringLiteral("i\u0307"));
    EXPECT_EQ(lowerCased(QString()), QString());
}

TEST(Text, CapitalizesWordByWord) {
    const auto capitalized = [](const char* text) {
        return capitalizedWords(QString::fromUtf8(text)).toStdString();
    };
    EXPECT_EQ(capitalized("founder ops"), "Founder Ops");
    EXPECT_EQ(capitalized("ALL CAPS"), "All Caps");
    EXPECT_EQ(capitalized("o'neil's re-work"), "O'neil's Re-work");
    EXPECT_EQ(capitalized("  two  blanks "), "  Two  Blanks ") << "blanks stay";
    EXPECT_EQ(capitalized("\u00E9cole \u01C6ep"), "\u00C9cole \u01C5ep");
    EXPECT_EQ(capitalized("e\u0301cole"), "E\u0301cole");
    EXPECT_EQ(capitalized("3d work"), "3d Work");
    EXPECT_EQ(capitalized(""), "");
}

TEST(Text, TellsLettersAndNumbersByTheirFirstScalar) {
    for (const QString& character :
         {QStringLiteral("a"), QStringLiteral("7"), QStringLiteral("\u00BD"), kEAcute,
          QStringLiteral("\u6F22"), QStringLiteral("\u0663"), QStringLiteral("\U0001D7D8")})
        EXPECT_TRUE(isLetterOrNumber(character)) << character.toStdString();
    for (const QString& character :
         {QString(), QStringLiteral("_"), QStringLiteral("-"), QStringLiteral(" "), kBrick, kFamily,
          QStringLiteral("\u0301"), loneSurrogate()})
        EXPECT_FALSE(isLetterOrNumber(character)) << character.toStdString();
}

TEST(Text, TextThatHasSingleBlanksAlreadyIsNotCopied) {
    const QString clean = QStringLiteral("fixed the ") + kBrick;
    EXPECT_EQ(withSingleBlanks(clean).constData(), clean.constData());
}

TEST(Text, UpperCasesWithoutALocale) {
    EXPECT_EQ(upperCased(QStringLiteral("istanbul")), QStringLiteral("ISTANBUL"));
    EXPECT_EQ(upperCased(QStringLiteral("stra\u00DFe")), QStringLiteral("STRASSE"));
    EXPECT_EQ(upperCased(QStringLiteral("\u03BF\u03C2")), QStringLiteral("\u039F\u03A3"));
    EXPECT_EQ(upperCased(QString()), QString());
}

TEST(Text, TellsLettersApartFromNumbersAndMarks) {
    EXPECT_TRUE(isLetter(u"a"));
    EXPECT_TRUE(isLetter(kEAcute));
    EXPECT_TRUE(isLetter(u"\u6F22"));
    EXPECT_FALSE(isLetter(u"7"));
    EXPECT_FALSE(isLetter(u"\u2164")) << "a Roman numeral";
    EXPECT_FALSE(isLetter(u"\u0301"));
    EXPECT_FALSE(isLetter(u""));
}

TEST(Text, TellsWhatHasANumericValue) {
    EXPECT_TRUE(isNumeric(u"7"));
    EXPECT_TRUE(isNumeric(u"\u00B2"));
    EXPECT_TRUE(isNumeric(u"\u0663"));
    EXPECT_TRUE(isNumeric(u"\u2164"));
    EXPECT_TRUE(isNumeric(u"\u4E09")) << "the ideograph for three";
    EXPECT_FALSE(isNumeric(u"x"));
    EXPECT_FALSE(isNumeric(u"\u6F22"));
    EXPECT_FALSE(isNumeric(u""));
}

QStringList words(const QString& text) {
    QStringList found;
    QStringView rest = text;
    for (QStringView word = takeWord(rest); !word.isEmpty(); word = takeWord(rest))
        found += word.toString();
    EXPECT_TRUE(rest.isEmpty());
    return found;
}

TEST(Text, TakesWordsOfLettersMarksAndNumbers) {
    EXPECT_EQ(words(QStringLiteral(" don't ship v2/API_x!")),
              (QStringList{QStringLiteral("don"), QStringLiteral("t"), QStringLiteral("ship"),
                           QStringLiteral("v2"), QStringLiteral("API"), QStringLiteral("x")}));
    EXPECT_EQ(words(QStringLiteral("a") + kBrick + QStringLiteral("b")),
              (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    EXPECT_EQ(words(kEAcute + QStringLiteral("t") + kEAcute),
              QStringList{kEAcute + QStringLiteral("t") + kEAcute});
    EXPECT_EQ(words(QStringLiteral("\u6771\u4EAC\u3001\U00020BB7")),
              (QStringList{QStringLiteral("\u6771\u4EAC"), QStringLiteral("\U00020BB7")}));
    EXPECT_EQ(words(loneSurrogate() + QLatin1Char('a')), QStringList{QStringLiteral("a")});
    EXPECT_EQ(words(QStringLiteral(" .. ")), QStringList());
    EXPECT_EQ(words(QString()), QStringList());
}

TEST(Text, OrdersByCodePointsAlsoBeyondTheFirstPlane) {
    EXPECT_TRUE(codePointLess(u"a", u"b"));
    EXPECT_TRUE(codePointLess(u"a", u"ab"));
    EXPECT_TRUE(codePointLess(u"Z", u"a"));
    EXPECT_FALSE(codePointLess(u"a", u"a"));
    EXPECT_TRUE(codePointLess(u"\uFF21", u"\U00020BB7"));
    EXPECT_FALSE(codePointLess(u"\U00020BB7", u"\uFF21"));
}

TEST(Text, VisitsEachCharacterInOrder) {
    QStringList characters;
    forEachCharacter(QStringLiteral("a") + kFamily + kEAcute,
                     [&](QStringView character) { characters += character.toString(); });
    EXPECT_EQ(characters, (QStringList{QStringLiteral("a"), kFamily, kEAcute}));
}

RC_GTEST_PROP(Text, CharactersTogetherAreTheText, ()) {
    const QString text = *anyText();
    QString joined;
    qsizetype count = 0;
    forEachCharacter(text, [&](QStringView character) {
        RC_ASSERT(!character.isEmpty());
        joined += character;
        ++count;
    });
    RC_ASSERT(joined == text);
    RC_ASSERT(characterCount(text) == count);
}

RC_GTEST_PROP(Text, ACutTextHasTheCharactersAskedForAndStartsTheWhole, ()) {
    const QString text = *anyText();
    const auto limit = *rc::gen::inRange<qsizetype>(0, 12);
    const QString cut = firstCharacters(text, limit);
    RC_ASSERT(text.startsWith(cut));
    RC_ASSERT(characterCount(cut) == std::min(limit, characterCount(text)));
    RC_ASSERT(hasAtMost(text, limit) == (cut == text));
}

RC_GTEST_PROP(Text, CleaningTwiceIsCleaningOnce, ()) {
    const QString text = *anyText();
    RC_ASSERT(trimmed(trimmed(text)) == trimmed(text));
    RC_ASSERT(withSingleBlanks(withSingleBlanks(text)) == withSingleBlanks(text));
    RC_ASSERT(trimmed(withSingleBlanks(text)) == withSingleBlanks(text));
}

} // namespace
} // namespace vantle::text
