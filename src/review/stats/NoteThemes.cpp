#include "review/stats/NoteThemes.h"

#include "base/Text.h"

#include <QSet>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

namespace vantle {

namespace {

constexpr qsizetype kFewestCharacters = 3;
constexpr qsizetype kLongestAcronym = 6;

/// Words that are in most notes and say nothing about the work.
bool isStopWord(QStringView key) {
    static const QSet<QStringView> words = {
        u"about",    u"after", u"again", u"also",  u"been",   u"before",  u"being",   u"build",
        u"building", u"could", u"did",   u"does",  u"doing",  u"done",    u"from",    u"getting",
        u"going",    u"good",  u"have",  u"into",  u"just",   u"like",    u"made",    u"make",
        u"more",     u"need",  u"next",  u"only",  u"other",  u"over",    u"really",  u"session",
        u"some",     u"still", u"than",  u"that",  u"the",    u"their",   u"them",    u"then",
        u"there",    u"these", u"they",  u"thing", u"this",   u"those",   u"through", u"today",
        u"very",     u"want",  u"was",   u"were",  u"what",   u"when",    u"where",   u"which",
        u"while",    u"will",  u"with",  u"work",  u"worked", u"working", u"would",   u"your"};
    return words.contains(key);
}

/// Takes four units at a time, since each step waits for the one before.
std::size_t hashOf(std::u16string_view text) {
    constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
    std::uint64_t hash = text.size();
    const auto add = [&hash](std::uint64_t units) {
        hash = (hash ^ units) * kOdd;
        hash ^= hash >> 32;
    };
    constexpr std::size_t kUnits = sizeof(std::uint64_t) / sizeof(char16_t);
    for (; text.size() >= kUnits; text.remove_prefix(kUnits)) {
        std::uint64_t units = 0;
        std::memcpy(&units, text.data(), sizeof units);
        add(units);
    }
    std::uint64_t rest = 0;
    for (const char16_t unit : text)
        rest = rest << 16 | unit;
    add(rest);
    return hash;
}

template <typename Holds>
bool allCharacters(const QString& text, Holds holds) {
    bool all = true;
    text::forEachCharacter(text, [&](QStringView character) { all = all && holds(character); });
    return all;
}

bool countsAsTheme(const QString& key) {
    return !text::hasAtMost(key, kFewestCharacters - 1) && !isStopWord(key) &&
           !allCharacters(key, text::isNumeric);
}

bool isAcronym(const QString& piece) {
    return text::hasAtMost(piece, kLongestAcronym) && piece == text::upperCased(piece) &&
           !allCharacters(piece, [](QStringView character) { return !text::isLetter(character); });
}

} // namespace

NoteThemes::Key::Key(QStringView view)
    : text(view.utf16(), static_cast<std::size_t>(view.size()))
    , hash(hashOf(text)) {}

void NoteThemes::addNote(QStringView note) {
    for (QStringView word = text::takeWord(note); !word.isEmpty(); word = text::takeWord(note))
        addWord(word);
    ++m_note;
}

void NoteThemes::addWord(QStringView piece) {
    // A character has at least one unit, which rules short pieces out at once.
    if (piece.size() < kFewestCharacters) return;
    Word* word = m_bySpelling.value(Key(piece));
    if (!word) {
        const QString& spelling = m_spellings.emplace_back(piece.toString());
        word = &wordWritten(spelling);
        m_bySpelling.insert(Key(spelling), word);
    }
    if (word->lastNote == m_note) return;
    word->lastNote = m_note;
    ++word->noteCount;
}

NoteThemes::Word& NoteThemes::wordWritten(const QString& spelling) {
    const QString key = text::lowerCased(spelling);
    if (Word* const known = m_byKey.value(Key(key))) return *known;
    Word& word = m_words.emplace_back();
    word.key = key;
    word.firstNote = m_note;
    if (countsAsTheme(key)) word.display = isAcronym(spelling) ? spelling : key;
    m_byKey.insert(Key(word.key), &word);
    return word;
}

bool NoteThemes::comesBefore(const Word& left, const Word& right) {
    if (left.noteCount != right.noteCount) return left.noteCount > right.noteCount;
    if (left.firstNote != right.firstNote) return left.firstNote < right.firstNote;
    return text::codePointLess(left.key, right.key);
}

QStringList NoteThemes::mostFrequent(std::size_t limit) const {
    std::vector<const Word*> returning;
    for (const Word& word : m_words)
        if (word.noteCount > 1 && !word.display.isEmpty()) returning.push_back(&word);
    const auto end =
        returning.begin() + static_cast<std::ptrdiff_t>(std::min(limit, returning.size()));
    std::partial_sort(
        returning.begin(), end, returning.end(),
        [](const Word* left, const Word* right) { return comesBefore(*left, *right); });
    QStringList themes;
    std::for_each(returning.begin(), end, [&](const Word* word) { themes += word->display; });
    return themes;
}

} // namespace vantle
