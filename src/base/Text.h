// Text in user-perceived characters, with Unicode's case and letters.
//
// Pure functions, any thread. ICU has the tables; no function depends on the locale.
#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

namespace vantle::text {

/// Decodes valid UTF-8 and keeps every character. Qt's decoder drops a leading U+FEFF as a byte
/// order mark, but inside a file's strings it is a character.
[[nodiscard]] QString fromUtf8(QByteArrayView utf8);

/// Returns the number of user-perceived characters (extended grapheme clusters).
[[nodiscard]] qsizetype characterCount(QStringView text);

/// Whether `text` has at most `limit` user-perceived characters. Constant time for short texts.
[[nodiscard]] bool hasAtMost(QStringView text, qsizetype limit);

/// Returns the first `count` user-perceived characters, or all when there are fewer.
[[nodiscard]] QString firstCharacters(const QString& text, qsizetype count);

/// Returns `text` without Unicode White_Space at both ends.
[[nodiscard]] QString trimmed(const QString& text);

/// Returns the non-empty pieces between runs of white space, joined by single blanks. Returns
/// `text` itself, uncopied, when it has that form already.
[[nodiscard]] QString withSingleBlanks(const QString& text);

/// Returns a form that is equal for texts that differ only in case and diacritics.
[[nodiscard]] QString foldedCaseAndDiacritics(const QString& text);

/// Full lower-casing, independent of the locale.
[[nodiscard]] QString lowerCased(const QString& text);

/// Returns each word, separated by U+0020, with the first character in upper case and the rest in
/// lower case.
[[nodiscard]] QString capitalizedWords(const QString& text);

/// Full upper-casing, independent of the locale.
[[nodiscard]] QString upperCased(const QString& text);

/// Classifies a user-perceived character by the general category of its first scalar.
[[nodiscard]] bool isLetter(QStringView character);
[[nodiscard]] bool isLetterOrNumber(QStringView character);

/// Whether the first scalar of the character has a numeric value: digits of every script,
/// fractions, and ideographic numbers.
[[nodiscard]] bool isNumeric(QStringView character);

/// Removes the first run of letters, marks and numbers from `rest`, with what precedes it, and
/// returns the run; empty when there is none left. Marks belong to the run, so a letter keeps its
/// accent.
[[nodiscard]] QStringView takeWord(QStringView& rest);

/// Whether `left` precedes `right` by code points. Plain `<` compares UTF-16 units and sorts
/// characters beyond the first plane too early.
[[nodiscard]] bool codePointLess(QStringView left, QStringView right);

/// Returns the boundaries of the user-perceived characters, from 0 to the length.
[[nodiscard]] QList<qsizetype> characterBoundaries(QStringView text);

/// Calls `visit(QStringView)` for each user-perceived character of `text`, in order.
template <typename Visit>
void forEachCharacter(const QString& text, Visit visit) {
    const QList<qsizetype> bounds = characterBoundaries(text);
    for (qsizetype i = 1; i < bounds.size(); ++i)
        visit(QStringView(text).sliced(bounds[i - 1], bounds[i] - bounds[i - 1]));
}

} // namespace vantle::text
