// The recurring words of a period's notes.
//
// Any thread. Time is linear in the length of the notes.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <deque>
#include <string_view>

namespace vantle {

/// Counts words over notes, newest first. A word is a run of letters, marks and numbers in lower
/// case. It counts when it has at least three characters, not all of them numbers, and is no stop
/// word ("the", "today", "working", ...).
class NoteThemes {
public:
    NoteThemes() = default;
    NoteThemes(const NoteThemes&) = delete; // the indices point into the object
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

    /// A text with its hash. Lookups dominate a digest, and Qt's hash and comparison of short texts
    /// take twice as long.
    struct Key {
        explicit Key(QStringView view);

        std::u16string_view text; ///< not owned
        std::size_t hash;
        friend bool operator==(const Key& left, const Key& right) {
            return std::ranges::equal(left.text, right.text); // as memory, unlike ==
        }
        friend std::size_t qHash(const Key& key, std::size_t seed) { return key.hash ^ seed; }
    };

    void addWord(QStringView piece);
    [[nodiscard]] Word& wordWritten(const QString& spelling);
    [[nodiscard]] static bool comesBefore(const Word& left, const Word& right);

    int m_note = 0;           ///< index of the current note
    std::deque<Word> m_words; ///< deques, since the indices point to their elements
    std::deque<QString> m_spellings;
    QHash<Key, Word*> m_byKey;
    QHash<Key, Word*> m_bySpelling; ///< saves lower-casing a word that was met before
};

} // namespace vantle
