#include "review/stats/NoteDigest.h"

#include "base/Text.h"
#include "review/stats/NoteThemes.h"
#include "tracking/SkillList.h"

#include <algorithm>
#include <cstring>
#include <tuple>

namespace vantle {

namespace {

constexpr std::size_t kMostThemes = 3;
constexpr std::size_t kMostHighlights = 4;

struct Note {
    const Session* session;
    QString text; ///< with single blanks, not empty
};

/// Orders by the ids' text without making it. QUuid's `<` compares the variant first.
bool textComesBefore(const QUuid& left, const QUuid& right) {
    const auto head = [](const QUuid& id) { return std::tie(id.data1, id.data2, id.data3); };
    if (head(left) != head(right)) return head(left) < head(right);
    return std::memcmp(left.data4, right.data4, sizeof left.data4) < 0;
}

bool isNewer(const Note& left, const Note& right) {
    if (left.session->endedAt != right.session->endedAt)
        return left.session->endedAt > right.session->endedAt;
    return textComesBefore(left.session->id, right.session->id);
}

std::vector<Note> notesNewestFirst(SessionRefs sessions) {
    std::vector<Note> notes;
    notes.reserve(sessions.size());
    // The log is oldest first, so a walk from its end leaves little to sort.
    for (auto at = sessions.rbegin(); at != sessions.rend(); ++at) {
        QString text = text::withSingleBlanks((*at)->note);
        if (!text.isEmpty()) notes.push_back({*at, std::move(text)});
    }
    if (!std::ranges::is_sorted(notes, isNewer)) std::ranges::sort(notes, isNewer);
    return notes;
}

/// Returns the latest notes that differ in more than case.
std::vector<WrappedNoteDigest::Highlight> highlightsOf(const std::vector<Note>& notes,
                                                       const std::vector<Skill>& skills) {
    std::vector<WrappedNoteDigest::Highlight> highlights;
    QStringList shown; // in lower case
    for (const auto& [session, text] : notes) {
        if (highlights.size() == kMostHighlights) break;
        const QString key = text::lowerCased(text);
        if (shown.contains(key)) continue;
        shown += key;
        highlights.push_back(
            {session->id, text, SkillList::display(session->skillId, skills), session->endedAt});
    }
    return highlights;
}

/// "a", "a and b", "a, b, and c".
QString enumerated(const QStringList& words) {
    if (words.size() == 2) return words.join(QLatin1String(" and "));
    if (words.size() < 2) return words.join(QString());
    return words.first(words.size() - 1).join(QLatin1String(", ")) + QLatin1String(", and ") +
           words.last();
}

} // namespace

std::optional<WrappedNoteDigest> WrappedNoteDigest::compute(SessionRefs sessions,
                                                            const std::vector<Skill>& skills) {
    std::vector<Note> notes = notesNewestFirst(sessions);
    if (notes.empty()) return std::nullopt;

    WrappedNoteDigest digest;
    digest.noteCount = static_cast<int>(notes.size());
    NoteThemes themes;
    for (const Note& note : notes)
        themes.addNote(note.text);
    digest.themes = themes.mostFrequent(kMostThemes);
    digest.highlights = highlightsOf(notes, skills);
    digest.allNotes.reserve(digest.noteCount);
    for (Note& note : notes)
        digest.allNotes += std::move(note.text);
    return digest;
}

QString WrappedNoteDigest::storyLine() const {
    if (!themes.isEmpty())
        return QStringLiteral("Your notes kept returning to %1.").arg(enumerated(themes));
    if (noteCount == 1)
        return QStringLiteral("You captured one concrete moment that moved the work forward.");
    return QStringLiteral("You left a trail of %1 moments that moved the work forward.")
        .arg(noteCount);
}

} // namespace vantle
