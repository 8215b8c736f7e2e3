// Text as people see it: user-perceived characters, white space, case and letters by Unicode.
//
// Pure functions over QString, any thread. The tables are ICU's; no function depends on the
// person's locale.
#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

namespace vantle::text {

/// The text of valid UTF-8, every character of it. (Qt's own reader takes U+FEFF at the front for a
/// byte order mark and drops it; inside a file's strings it is a character like any other.)
[[nodiscard]] QString fromUtf8(QByteArrayView utf8);

/// How many user-perceived characters (extended grapheme clusters) `text` holds.
[[nodiscard]] qsizetype characterCount(QStringView text);

/// Whether `text` has at most `limit` user-perceived characters. Cheap for short texts.
[[nodiscard]] bool hasAtMost(QStringView text, qsizetype limit);

/// The first `count` user-perceived characters of `text`; all of it when it has no more.
[[nodiscard]] QString firstCharacters(const QString& text, qsizetype count);

/// `text` without white space and newlines (Unicode White_Space) at both ends.
[[nodiscard]] QString trimmed(const QString& text);

/// The pieces of `text` between runs of white space and newlines, without empty ones, joined by
/// one blank. The text itself, without a copy, where that is what it is already.
[[nodiscard]] QString withSingleBlanks(const QString& text);

/// The form under which texts that differ only in case and diacritics are the same.
[[nodiscard]] QString foldedCaseAndDiacritics(const QString& text);

/// Full lower-casing, independent of the locale.
[[nodiscard]] QString lowerCased(const QString& text);

/// Each word, the pieces between blanks (U+0020), with its first character in upper case and the
/// rest in lower case.
[[nodiscard]] QString capitalizedWords(const QString& text);

/// Full upper-casing, independent of the locale.
[[nodiscard]] QString upperCased(const QString& text);

/// What the first scalar of a user-perceived character says it is: by its general category.
[[nodiscard]] bool isLetter(QStringView character);
[[nodiscard]] bool isLetterOrNumber(QStringView character);

/// Whether the first scalar of a user-perceived character has a numeric value: digits of every
/// script, fractions, and the ideographs that numbers are written with.
[[nodiscard]] bool isNumeric(QStringView character);

/// Takes the first run of letters, marks and numbers off the front of `rest`, along with what
/// stands before it. Empty when none is left. Marks are of the run, so a letter keeps its accent.
[[nodiscard]] QStringView takeWord(QStringView& rest);

/// Whether `left` comes before `right` by code points. Plain `<` goes by UTF-16 units, and sorts
/// characters beyond the first plane before some within it.
[[nodiscard]] bool codePointLess(QStringView left, QStringView right);

/// The boundaries of the user-perceived characters of `text`, from 0 to its length.
[[nodiscard]] QList<qsizetype> characterBoundaries(QStringView text);

/// Calls `visit(QStringView)` for each user-perceived character of `text`, in order.
template <typename Visit>
void forEachCharacter(const QString& text, Visit visit) {
    const QList<qsizetype> bounds = characterBoundaries(text);
    for (qsizetype i = 1; i < bounds.size(); ++i)
        visit(QStringView(text).sliced(bounds[i - 1], bounds[i] - bounds[i - 1]));
}

} // namespace vantle::text
