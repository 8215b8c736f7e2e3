// The recurring words of a period's notes.
//
// Any thread. Time is linear in the length of the notes.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <deque>
#include <string>
#include <string_view>

namespace vantle {

/// Counts words over notes, newest first. A word is a run of letters, marks and numbers in lower
/// case. It counts when it has at least three characters, not all of them numbers, and is no stop
/// word ("the", "today", "working", ...).
class NoteThemes {
public:
    NoteThemes() = default;
    NoteThemes(const NoteThemes&) = delete; // m_index points into the object
    NoteThemes& operator=(const NoteThemes&) = delete;

    /// Counts each word of the note once.
    void addNote(QStringView note);

    /// Returns at most `limit` words that occur in two or more notes, by frequency, then by the
    /// newest note, then by code points. They are in lower case, except acronyms: words first met
    /// in upper case, at most six characters long.
    [[nodiscard]] QStringList mostFrequent(std::size_t limit) const;

private:
    struct Word {
        QString key;       ///< in lower case
        QString display;   ///< empty for a word that does not count
        int noteCount = 0; ///< notes that contain it
        int firstNote = 0; ///< the newest of them
        int lastNote = -1; ///< the note that counted it last
    };

    /// A key with its hash, which is computed while the key is put in lower case. This and the
    /// plain comparison halve the lookup time, which dominates a digest.
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

    int m_note = 0;           ///< index of the current note
    std::deque<Word> m_words; ///< a deque, since m_index points to its elements
    QHash<Key, Word*> m_index;
    std::u16string m_key; ///< the current word; kept to avoid an allocation for each
};

} // namespace vantle
