// The notes of all sessions as the notes window lists them: which are shown, in what order, under
// which heading.
//
// Plain values and pure functions, any thread.
#pragma once

#include "base/Calendar.h"
#include "tracking/DurationStyle.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <functional>
#include <optional>
#include <vector>

namespace vantle {

/// One session that has a note.
struct LogEntry {
    QUuid id;              ///< the session's
    std::size_t skill = 0; ///< its place in the log's skills
    QString note;          ///< without blanks at the ends, never empty
    Date startedAt;
    std::int64_t activeSeconds = 0;
    bool isManual = false; ///< logged by hand
    QString searchable;    ///< the note in lower case

    friend bool operator==(const LogEntry&, const LogEntry&) = default;
};

/// What is being looked for. An entry has to fit both.
struct LogFilter {
    QString query; ///< as typed
    std::optional<QString> skillId;

    /// Whether it leaves anything out. Blanks alone are no search.
    [[nodiscard]] bool isFiltering() const;
};

/// All notes.
struct NotesLog {
    std::vector<LogEntry> entries; ///< newest start first
    std::vector<Skill> skills;     ///< those that have a note, that of the newest first

    [[nodiscard]] const Skill& skillOf(const LogEntry& entry) const { return skills[entry.skill]; }
};

namespace noteslog {

/// A skill to show for an id from the log, which may no longer exist.
using SkillLookup = std::function<Skill(const QString& id)>;

/// The notes of the sessions. Those that don't count in totals are here too.
[[nodiscard]] NotesLog read(const std::vector<Session>& sessions, const SkillLookup& skillOf);

/// Places in a log's entries, in their order.
using Places = std::vector<std::size_t>;

/// Those that pass the filter. Upper and lower case are the same, letters with and without marks
/// are not.
[[nodiscard]] Places visible(const NotesLog& log, const LogFilter& filter);

/// The entries of one day.
struct LogDay {
    Date day; ///< its first moment
    Places entries;
};

/// The entries under the days on which their sessions started, newest day first.
[[nodiscard]] std::vector<LogDay> days(const NotesLog& log, const Places& visible,
                                       const Calendar& calendar);

/// "note" or "notes", to stand after the count.
[[nodiscard]] QString countWord(std::size_t count);

/// What the shown sessions add up to.
[[nodiscard]] QString subtitleText(const NotesLog& log, const Places& visible, bool isFiltering,
                                   DurationStyle style);

/// The longest of the shown sessions and the skill with most of them; empty when none is shown.
[[nodiscard]] QString footerText(const NotesLog& log, const Places& visible, DurationStyle style);

} // namespace noteslog
} // namespace vantle
