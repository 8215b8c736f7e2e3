// The notes of all sessions, as the notes window lists them.
//
// Which are shown, in what order, under which heading. Plain values and pure functions, any thread.
#pragma once

#include "base/Calendar.h"
#include "tracking/DurationStyle.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <functional>
#include <optional>
#include <vector>

namespace vantle {

/// A session with a note.
struct LogEntry {
    QUuid id;              ///< the session's
    std::size_t skill = 0; ///< index into the log's skills
    QString note;          ///< trimmed, never empty
    Date startedAt;
    std::int64_t activeSeconds = 0;
    bool isManual = false; ///< logged by hand
    QString searchable;    ///< the note in lower case

    friend bool operator==(const LogEntry&, const LogEntry&) = default;
};

/// A filter; an entry must match both parts.
struct LogFilter {
    QString query; ///< as typed
    std::optional<QString> skillId;

    /// Whether it filters at all. Blanks alone are no query.
    [[nodiscard]] bool isFiltering() const;
};

/// All notes.
struct NotesLog {
    std::vector<LogEntry> entries; ///< newest start first
    std::vector<Skill> skills;     ///< those with a note, most recent first

    [[nodiscard]] const Skill& skillOf(const LogEntry& entry) const { return skills[entry.skill]; }
};

namespace noteslog {

/// Returns a skill to show for an id from the log, which may be deleted.
using SkillLookup = std::function<Skill(const QString& id)>;

/// Returns the notes of the sessions, including those that do not count in totals.
[[nodiscard]] NotesLog read(const std::vector<Session>& sessions, const SkillLookup& skillOf);

/// Indices into a log's entries, ascending.
using Places = std::vector<std::size_t>;

/// Returns the entries that match. Ignores case, but not diacritics.
[[nodiscard]] Places visible(const NotesLog& log, const LogFilter& filter);

/// The same, given the entries that matched `before`: another letter of a word looks at these only.
[[nodiscard]] Places visible(const NotesLog& log, const LogFilter& filter, const LogFilter& before,
                             const Places& visibleBefore);

/// The entries of one day.
struct LogDay {
    Date day; ///< its first moment
    Places entries;
};

/// Groups the entries by the day of their start, newest day first.
[[nodiscard]] std::vector<LogDay> days(const NotesLog& log, const Places& visible,
                                       const Calendar& calendar);

/// "note" or "notes", to stand after the count.
[[nodiscard]] QString countWord(std::size_t count);

/// Describes the total of the shown sessions.
[[nodiscard]] QString subtitleText(const NotesLog& log, const Places& visible, bool isFiltering,
                                   DurationStyle style);

/// Names the longest of the shown sessions and the skill with most of them; empty when none is
/// shown.
[[nodiscard]] QString footerText(const NotesLog& log, const Places& visible, DurationStyle style);

} // namespace noteslog
} // namespace vantle
