#include "review/stats/NoteThemes.h"

#include "base/Text.h"

#include <QSet>

#include <algorithm>
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

std::u16string_view unitsOf(QStringView text) {
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}

char16_t asciiLower(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit | 0x20) : unit;
}

/// FNV-1a over UTF-16 units.
class Hash {
public:
    void add(char16_t unit) { m_value = (m_value ^ unit) * 0x100000001B3u; }
    [[nodiscard]] std::size_t value() const { return m_value; }

private:
    std::size_t m_value = 0xCBF29CE484222325u;
};

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

void NoteThemes::addNote(QStringView note) {
    for (QStringView word = text::takeWord(note); !word.isEmpty(); word = text::takeWord(note))
        addWord(word);
    ++m_note;
}

void NoteThemes::addWord(QStringView piece) {
    // A character has at least one unit, which rules short pieces out at once.
    if (piece.size() < kFewestCharacters) return;
    Word& word = entryFor(keyOf(piece), piece);
    if (word.lastNote == m_note) return;
    word.lastNote = m_note;
    ++word.noteCount;
}

NoteThemes::Key NoteThemes::keyOf(QStringView piece) {
    const std::u16string_view units = unitsOf(piece);
    m_key.resize(units.size());
    Hash hash;
    char16_t allBits = 0;
    for (std::size_t i = 0; i < units.size(); ++i) {
        m_key[i] = asciiLower(units[i]);
        allBits |= units[i];
        hash.add(m_key[i]);
    }
    if (allBits < 0x80) return {m_key, hash.value()};

    m_key = text::lowerCased(piece.toString()).toStdU16String();
    hash = {};
    for (const char16_t unit : m_key)
        hash.add(unit);
    return {m_key, hash.value()};
}

NoteThemes::Word& NoteThemes::entryFor(const Key& key, QStringView piece) {
    if (Word* const known = m_index.value(key)) return *known;
    Word& word = m_words.emplace_back();
    word.key = QString::fromStdU16String(m_key);
    word.firstNote = m_note;
    if (countsAsTheme(word.key)) {
        const QString written = piece.toString();
        word.display = isAcronym(written) ? written : word.key;
    }
    m_index.insert({unitsOf(word.key), key.hash}, &word);
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
