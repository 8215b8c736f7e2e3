// Which words keep returning in a run of notes.
//
// Pure, any thread. The time is linear in the length of the notes.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <deque>
#include <string>
#include <string_view>

namespace vantle {

/// Counts words over notes given newest first. A word is a run of letters, marks and numbers in
/// lower case. It counts when it has three characters or more that are not all numbers and is none
/// of the words that every note has ("the", "today", "working", ...).
class NoteThemes {
public:
    NoteThemes() = default;
    NoteThemes(const NoteThemes&) = delete; // its index points into it
    NoteThemes& operator=(const NoteThemes&) = delete;

    /// Counts each word of the note once, however often it stands there.
    void addNote(QStringView note);

    /// The words that stand in two notes or more, at most `limit` of them, as they are shown: the
    /// most frequent first, of those the one that is in the newer note, of those the smaller by
    /// code points. A word is shown in lower case, unless it was met first as an acronym, at most
    /// six characters all in upper case.
    [[nodiscard]] QStringList mostFrequent(std::size_t limit) const;

private:
    struct Word {
        QString key;       ///< in lower case
        QString display;   ///< empty for a word that doesn't count
        int noteCount = 0; ///< notes that hold it
        int firstNote = 0; ///< the newest of them
        int lastNote = -1; ///< the note that counted it last
    };

    /// A key with its hash, which comes out of the walk that puts it in lower case. (This and the
    /// plain comparison halve the time of a lookup, which is most of the time of a digest.)
    struct Key {
        std::u16string_view text;
        std::size_t hash;
        friend bool operator==(const Key& left, const Key& right) {
            return left.text == right.text;
        }
        friend std::size_t qHash(const Key& key, std::size_t seed) { return key.hash ^ seed; }
    };

    void addWord(QStringView piece);
    [[nodiscard]] Key keyOf(QStringView piece);
    [[nodiscard]] Word& entryFor(const Key& key, QStringView piece);
    [[nodiscard]] static bool comesBefore(const Word& left, const Word& right);

    int m_note = 0;           ///< the position of the note being counted
    std::deque<Word> m_words; ///< stays in place, since the index points into it
    QHash<Key, Word*> m_index;
    std::u16string m_key; ///< the word at hand; kept, since to make it anew takes time
};

} // namespace vantle
