#include "base/Text.h"

#include "base/IcuText.h"

#include <QStringList>

#include <unicode/brkiter.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>
#include <unicode/utext.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

namespace vantle::text {

namespace {

using icutext::fromIcu;

/// Returns a read-only ICU view of `text`: no copy, valid as long as `text`.
icu::UnicodeString viewOf(QStringView text) {
    return {false, text.utf16(), static_cast<int32_t>(text.size())};
}

/// Returns this thread's character iterator. It is kept, since construction costs more than a short
/// walk.
icu::BreakIterator& characterIterator() {
    thread_local const std::unique_ptr<icu::BreakIterator> iterator = [] {
        UErrorCode status = U_ZERO_ERROR;
        return std::unique_ptr<icu::BreakIterator>(
            icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    }();
    return *iterator;
}

constexpr char32_t kAsciiEnd = 0x80;

bool isWhiteSpace(char32_t scalar) {
    // Most text is ASCII, which needs no ICU table.
    if (scalar < kAsciiEnd) return scalar == U' ' || (scalar >= U'\t' && scalar <= U'\r');
    return u_isUWhiteSpace(static_cast<UChar32>(scalar));
}

constexpr uint32_t kLetters = U_GC_L_MASK;
constexpr uint32_t kLettersAndNumbers = U_GC_L_MASK | U_GC_N_MASK;
constexpr uint32_t kWordCategories = U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK;

constexpr std::array<bool, kAsciiEnd> kIsInAsciiWord = [] {
    std::array<bool, kAsciiEnd> isIn{};
    for (const std::string_view units :
         {"0123456789", "ABCDEFGHIJKLMNOPQRSTUVWXYZ", "abcdefghijklmnopqrstuvwxyz"})
        for (const char unit : units)
            isIn[static_cast<unsigned char>(unit)] = true;
    return isIn;
}();

/// For characters beyond ASCII.
bool isInWord(UChar32 scalar) { return (U_GET_GC_MASK(scalar) & kWordCategories) != 0; }

/// Returns the first position from `at` on whose scalar is in a word, or is not; the end when there
/// is none.
qsizetype nextPlace(QStringView text, qsizetype at, bool inWord) {
    const char16_t* const units = text.utf16();
    const qsizetype length = text.size();
    while (at < length) {
        if (units[at] < kAsciiEnd) {
            if (kIsInAsciiWord[units[at]] == inWord) return at;
            ++at;
            continue;
        }
        const qsizetype before = at;
        UChar32 scalar = 0;
        U16_NEXT(units, at, length, scalar);
        if (isInWord(scalar) == inWord) return before;
    }
    return length;
}

UChar32 firstScalar(QStringView character) {
    UChar32 scalar = 0;
    if (!character.isEmpty()) U16_GET(character.utf16(), 0, 0, character.size(), scalar);
    return scalar;
}

/// Whether every UTF-16 unit is a character: no combining marks and no CR LF.
bool unitsAreCharacters(QStringView text) {
    constexpr char16_t kFirstMark = 0x300;
    return std::ranges::all_of(
        text, [](QChar unit) { return unit.unicode() < kFirstMark && unit != QLatin1Char('\r'); });
}

/// Whether `text` has no white space but single blanks between pieces.
bool hasSingleBlanks(QStringView text) {
    bool afterPiece = false;
    for (const QChar unit : text) {
        const bool isBlank = unit == QLatin1Char(' ');
        if (isBlank ? !afterPiece : isWhiteSpace(unit.unicode())) // no surrogate is white space
            return false;
        afterPiece = !isBlank;
    }
    return afterPiece || text.isEmpty();
}

/// Calls `visit(begin, end, scalar)` for each scalar; a lone surrogate counts as one.
template <typename Visit>
void forEachScalar(QStringView text, Visit visit) {
    const char16_t* units = text.utf16();
    const auto length = text.size();
    for (qsizetype at = 0; at < length;) {
        const qsizetype begin = at;
        UChar32 scalar = 0;
        U16_NEXT(units, at, length, scalar);
        visit(begin, at, static_cast<char32_t>(scalar));
    }
}

} // namespace

QString fromUtf8(QByteArrayView utf8) {
    constexpr QByteArrayView kMark("\xEF\xBB\xBF");
    if (!utf8.startsWith(kMark)) return QString::fromUtf8(utf8);
    return QChar(0xFEFF) + fromUtf8(utf8.sliced(kMark.size()));
}

QList<qsizetype> characterBoundaries(QStringView text) {
    QList<qsizetype> bounds{0};
    if (text.isEmpty()) return bounds;
    icu::BreakIterator& iterator = characterIterator();
    const icu::UnicodeString view = viewOf(text);
    iterator.setText(view);
    for (int32_t at = iterator.next(); at != icu::BreakIterator::DONE; at = iterator.next())
        bounds.append(at);
    iterator.setText(icu::UnicodeString());
    return bounds;
}

qsizetype characterCount(QStringView text) {
    return unitsAreCharacters(text) ? text.size() : characterBoundaries(text).size() - 1;
}

bool hasAtMost(QStringView text, qsizetype limit) {
    // A character has at least one unit, so a short text needs no iteration.
    return text.size() <= limit || characterCount(text) <= limit;
}

QString firstCharacters(const QString& text, qsizetype count) {
    if (text.size() <= count) return text;
    const QList<qsizetype> bounds = characterBoundaries(text);
    return bounds.size() - 1 <= count ? text : text.first(bounds[count]);
}

QString trimmed(const QString& text) {
    qsizetype begin = -1;
    qsizetype end = 0;
    forEachScalar(text, [&](qsizetype from, qsizetype to, char32_t scalar) {
        if (isWhiteSpace(scalar)) return;
        if (begin < 0) begin = from;
        end = to;
    });
    return begin < 0 ? QString() : text.sliced(begin, end - begin);
}

QString withSingleBlanks(const QString& text) {
    if (hasSingleBlanks(text)) return text;
    QString result;
    bool gap = false;
    forEachScalar(text, [&](qsizetype from, qsizetype to, char32_t scalar) {
        if (isWhiteSpace(scalar)) {
            gap = !result.isEmpty();
            return;
        }
        if (gap) result += QLatin1Char(' ');
        gap = false;
        result += QStringView(text).sliced(from, to - from);
    });
    return result;
}

QString foldedCaseAndDiacritics(const QString& text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* nfd = icu::Normalizer2::getNFDInstance(status);
    const icu::Normalizer2* nfc = icu::Normalizer2::getNFCInstance(status);
    const icu::UnicodeString decomposed = nfd->normalize(viewOf(text), status);
    icu::UnicodeString bare;
    for (int32_t at = 0; at < decomposed.length(); at = decomposed.moveIndex32(at, 1)) {
        const UChar32 scalar = decomposed.char32At(at);
        if (u_charType(scalar) != U_NON_SPACING_MARK) bare.append(scalar);
    }
    bare.foldCase(U_FOLD_CASE_DEFAULT);
    return fromIcu(nfc->normalize(bare, status));
}

QString lowerCased(const QString& text) {
    icu::UnicodeString lower(text.utf16(), static_cast<int32_t>(text.size()));
    lower.toLower(icu::Locale::getRoot());
    return fromIcu(lower);
}

QString capitalizedWords(const QString& text) {
    QStringList words = text.split(QLatin1Char(' '));
    for (QString& word : words) {
        if (word.isEmpty()) continue;
        const QString first = firstCharacters(word, 1);
        icu::UnicodeString upper(first.utf16(), static_cast<int32_t>(first.size()));
        upper.toTitle(nullptr, icu::Locale::getRoot());
        word = fromIcu(upper) + lowerCased(word.sliced(first.size()));
    }
    return words.join(QLatin1Char(' '));
}

QString upperCased(const QString& text) {
    icu::UnicodeString upper(text.utf16(), static_cast<int32_t>(text.size()));
    upper.toUpper(icu::Locale::getRoot());
    return fromIcu(upper);
}

bool isLetter(QStringView character) {
    return (U_GET_GC_MASK(firstScalar(character)) & kLetters) != 0;
}

bool isLetterOrNumber(QStringView character) {
    return (U_GET_GC_MASK(firstScalar(character)) & kLettersAndNumbers) != 0;
}

bool isNumeric(QStringView character) {
    return u_getIntPropertyValue(firstScalar(character), UCHAR_NUMERIC_TYPE) != U_NT_NONE;
}

QStringView takeWord(QStringView& rest) {
    const qsizetype begin = nextPlace(rest, 0, true);
    const qsizetype end = nextPlace(rest, begin, false);
    const QStringView word = rest.sliced(begin, end - begin);
    rest = rest.sliced(end);
    return word;
}

bool codePointLess(QStringView left, QStringView right) {
    return u_strCompare(left.utf16(), static_cast<int32_t>(left.size()), right.utf16(),
                        static_cast<int32_t>(right.size()), true) < 0;
}

} // namespace vantle::text
