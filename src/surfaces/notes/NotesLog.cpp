#include "surfaces/notes/NotesLog.h"

#include "base/Bidi.h"
#include "base/LocalTime.h"
#include "base/Text.h"
#include "base/Words.h"
#include "tracking/DashFormat.h"

#include <QHash>

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <ranges>

namespace vantle {

bool LogFilter::isFiltering() const {
    return skillId.has_value() || !text::trimmed(query).isEmpty();
}

namespace noteslog {

namespace {

/// Orders by start, newest first, whatever the input order.
std::vector<const Session*> newestFirst(const std::vector<Session>& sessions) {
    std::vector<const Session*> ordered;
    for (const Session& session : sessions)
        if (!session.note.isEmpty()) ordered.push_back(&session);
    std::ranges::stable_sort(ordered, std::ranges::greater(),
                             [](const Session* session) { return session->startedAt; });
    return ordered;
}

/// Returns the number of shown entries per skill.
std::vector<std::size_t> notesPerSkill(const NotesLog& log, const Places& visible) {
    std::vector<std::size_t> counts(log.skills.size());
    for (const std::size_t place : visible)
        ++counts[log.entries[place].skill];
    return counts;
}

QString soughtBy(const LogFilter& filter) { return text::lowerCased(text::trimmed(filter.query)); }

/// Decides which entries match. Skills are looked at once each instead of once per note.
class Match {
public:
    Match(const NotesLog& log, const LogFilter& filter) : m_log(log), m_sought(soughtBy(filter)) {
        for (const Skill& skill : log.skills) {
            m_isShown.push_back(!filter.skillId || *filter.skillId == skill.id);
            m_isFound.push_back(m_sought.isEmpty() ||
                                text::lowerCased(skill.name).contains(m_sought));
        }
    }
    [[nodiscard]] bool operator()(std::size_t place) const {
        const LogEntry& entry = m_log.entries[place];
        return m_isShown[entry.skill] &&
               (m_isFound[entry.skill] || entry.searchable.contains(m_sought));
    }

private:
    const NotesLog& m_log;
    const QString m_sought;
    std::vector<bool> m_isShown;
    std::vector<bool> m_isFound;
};

struct CodePointLess {
    bool operator()(const QString& left, const QString& right) const {
        return text::codePointLess(left, right);
    }
};

} // namespace

NotesLog read(const std::vector<Session>& sessions, const SkillLookup& skillOf) {
    NotesLog log;
    QHash<QString, std::size_t> places;
    for (const Session* session : newestFirst(sessions)) {
        QString note = text::trimmed(session->note);
        if (note.isEmpty()) continue;
        auto place = places.constFind(session->skillId);
        if (place == places.constEnd()) {
            place = places.insert(session->skillId, log.skills.size());
            log.skills.push_back(skillOf(session->skillId));
        }
        QString searchable = text::lowerCased(note);
        log.entries.push_back({session->id, *place, std::move(note), session->startedAt,
                               session->activeSeconds, session->source == sourceManual(),
                               std::move(searchable)});
    }
    return log;
}

Places visible(const NotesLog& log, const LogFilter& filter) {
    const Match matches(log, filter);
    Places places;
    for (std::size_t place = 0; place < log.entries.size(); ++place)
        if (matches(place)) places.push_back(place);
    return places;
}

Places visible(const NotesLog& log, const LogFilter& filter, const LogFilter& before,
               const Places& visibleBefore) {
    // What holds the longer text holds each part of it.
    const bool isNarrower = before.isFiltering() && filter.skillId == before.skillId &&
                            soughtBy(filter).contains(soughtBy(before));
    if (!isNarrower) return visible(log, filter);
    const Match matches(log, filter);
    Places places;
    std::ranges::copy_if(visibleBefore, std::back_inserter(places), std::cref(matches));
    return places;
}

std::vector<LogDay> days(const NotesLog& log, const Places& visible, const Calendar& calendar) {
    LocalTime wall(calendar);
    std::vector<LogDay> days;
    std::vector<localtime::Day> numbers;
    for (const std::size_t place : visible) {
        const localtime::Day number = wall.at(log.entries[place].startedAt).day;
        // Nearly always the last one. A clock set back over midnight returns to an earlier day.
        if (numbers.empty() || numbers.back() != number) {
            const auto at = std::ranges::lower_bound(numbers, number, std::ranges::greater());
            const auto index = at - numbers.begin();
            if (at == numbers.end() || *at != number) {
                numbers.insert(at, number);
                days.insert(days.begin() + index, {wall.startOfDay(number), {}});
            }
            days[static_cast<std::size_t>(index)].entries.push_back(place);
        } else {
            days.back().entries.push_back(place);
        }
    }
    return days;
}

QString countWord(std::size_t count) {
    return count == 1 ? Words::tr("note") : Words::tr("notes", nullptr, static_cast<int>(count));
}

QString subtitleText(const NotesLog& log, const Places& visible, bool isFiltering,
                     DurationStyle style) {
    std::int64_t seconds = 0;
    for (const std::size_t place : visible)
        seconds += log.entries[place].activeSeconds;
    const QString form = isFiltering ? Words::tr("Across %1 of the work you filtered to.")
                                     : Words::tr("Across %1 of tracked work.");
    return form.arg(dashformat::sessionDuration(seconds, style));
}

QString footerText(const NotesLog& log, const Places& visible, DurationStyle style) {
    if (visible.empty()) return {};
    const auto secondsOf = [&](std::size_t place) { return log.entries[place].activeSeconds; };
    const std::size_t longest = *std::ranges::max_element(visible, {}, secondsOf);

    // Skills of equal name count together; of equal counts the smaller name comes first.
    std::map<QString, std::size_t, CodePointLess> notes;
    const std::vector<std::size_t> counts = notesPerSkill(log, visible);
    for (std::size_t skill = 0; skill < counts.size(); ++skill)
        notes[log.skills[skill].name] += counts[skill];
    const auto most =
        std::ranges::max_element(notes, {}, [](const auto& pair) { return pair.second; });

    const QString duration = dashformat::sessionDuration(secondsOf(longest), style);
    return Words::tr("Longest noted session: %1. Most noted: %2.")
        .arg(duration, bidi::isolated(most->first));
}

} // namespace noteslog
} // namespace vantle
