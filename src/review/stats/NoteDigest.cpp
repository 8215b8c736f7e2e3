#include "review/stats/NoteDigest.h"

#include "base/Text.h"
#include "review/stats/NoteThemes.h"
#include "tracking/SkillList.h"

#include <algorithm>
#include <cstring>
#include <tuple>
#include <utility>

namespace vantle {

namespace {

constexpr std::size_t kMostThemes = 3;
constexpr std::size_t kMostHighlights = 4;

/// Orders by the ids' text without making it. QUuid's `<` compares the variant first.
bool textComesBefore(const QUuid& left, const QUuid& right) {
    const auto head = [](const QUuid& id) { return std::tie(id.data1, id.data2, id.data3); };
    if (head(left) != head(right)) return head(left) < head(right);
    return std::memcmp(left.data4, right.data4, sizeof left.data4) < 0;
}

bool isNewer(const Session* left, const Session* right) {
    if (left->endedAt != right->endedAt) return left->endedAt > right->endedAt;
    return textComesBefore(left->id, right->id);
}

std::vector<const Session*> newestFirst(SessionRefs sessions) {
    // The log is oldest first, so its reverse is mostly in order.
    std::vector<const Session*> ordered(sessions.rbegin(), sessions.rend());
    if (!std::ranges::is_sorted(ordered, isNewer)) std::ranges::stable_sort(ordered, isNewer);
    return ordered;
}

/// The first notes that differ in more than case.
class Highlights {
public:
    explicit Highlights(const std::vector<Skill>& skills) : m_skills(skills) {}

    void add(const Session& session, const QString& text) {
        if (m_chosen.size() == kMostHighlights) return;
        // Notes that recur are mostly written alike, which saves lower-casing them.
        if (std::ranges::find(m_chosen, text, &WrappedNoteDigest::Highlight::text) !=
            m_chosen.end())
            return;
        const QString key = text::lowerCased(text);
        if (m_keys.contains(key)) return;
        m_keys += key;
        m_chosen.push_back(
            {session.id, text, SkillList::display(session.skillId, m_skills), session.endedAt});
    }

    [[nodiscard]] std::vector<WrappedNoteDigest::Highlight> take() && {
        return std::move(m_chosen);
    }

private:
    const std::vector<Skill>& m_skills;
    std::vector<WrappedNoteDigest::Highlight> m_chosen;
    QStringList m_keys; ///< the chosen notes in lower case
};

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
    WrappedNoteDigest digest;
    digest.allNotes.reserve(static_cast<qsizetype>(sessions.size()));
    NoteThemes themes;
    Highlights highlights(skills);
    for (const Session* session : newestFirst(sessions)) {
        QString text = text::withSingleBlanks(session->note);
        if (text.isEmpty()) continue;
        themes.addNote(text);
        highlights.add(*session, text);
        digest.allNotes += std::move(text);
    }
    if (digest.allNotes.isEmpty()) return std::nullopt;
    digest.noteCount = static_cast<int>(digest.allNotes.size());
    digest.themes = themes.mostFrequent(kMostThemes);
    digest.highlights = std::move(highlights).take();
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
