#include "tracking/Totals.h"

#include "tracking/RunningTotals.h"
#include "tracking/SkillNumbers.h"
#include "tracking/TrackerCore.h"

#include <algorithm>

namespace vantle::totals {

namespace {

constexpr std::int64_t kHour = 3600;

double asHours(std::int64_t seconds) { return static_cast<double>(seconds) / 3600.0; }

} // namespace

Hours hours(const std::vector<Session>& sessions, Date now, const Calendar& calendar) {
    const Date day = calendar.startOfDay(now);
    const Date week = calendar.startOfWeek(now).value_or(day);
    std::int64_t today = 0;
    std::int64_t thisWeek = 0;
    std::int64_t allTime = 0;
    for (const Session& session : sessions) {
        if (!TrackerCore::countsInTotals(session, now)) continue;
        allTime += session.activeSeconds;
        if (session.endedAt >= week) thisWeek += session.activeSeconds;
        if (session.endedAt >= day) today += session.activeSeconds;
    }
    return {asHours(today), asHours(thisWeek), asHours(allTime)};
}

std::int64_t secondsAllTime(const std::vector<Session>& sessions, Date now) {
    std::int64_t seconds = 0;
    for (const Session& session : sessions)
        if (TrackerCore::countsInTotals(session, now)) seconds += session.activeSeconds;
    return seconds;
}

std::vector<SkillTotal> perSkillTotals(const std::vector<Session>& sessions, Date now,
                                       const std::vector<Skill>& skills) {
    SkillNumbers numbers;
    std::vector<std::int64_t> seconds; // by number
    for (const Session& session : sessions) {
        if (!TrackerCore::countsInTotals(session, now)) continue;
        const std::size_t number = numbers.of(session.skillId);
        if (number == seconds.size()) seconds.push_back(0);
        seconds[number] += session.activeSeconds;
    }
    std::vector<SkillTotal> entries;
    entries.reserve(skills.size());
    for (const Skill& skill : skills)
        entries.push_back({skill, 0});
    for (std::size_t number = 0; number < seconds.size(); ++number) {
        const QString& id = numbers.idOf(number);
        const auto entry = std::ranges::find_if(
            entries, [&](const SkillTotal& total) { return total.skill.id == id; });
        if (entry != entries.end()) entry->hours = asHours(seconds[number]);
    }
    return entries;
}

std::vector<Badge> badges(const std::vector<Session>& sessions, Date now) {
    BadgeTally tally;
    for (const Session& session : sessions)
        if (TrackerCore::countsInTotals(session, now)) tally.add(session);
    return tally.earned();
}

std::vector<DotRun> hourDotRuns(const std::vector<Session>& sessions, Date now,
                                const std::vector<Skill>& skills) {
    DotTally tally;
    for (const Session& session : sessions)
        if (TrackerCore::countsInTotals(session, now)) tally.add(session);
    return tally.runs(skills);
}

std::vector<Skill> hourDots(const std::vector<Session>& sessions, Date now,
                            const std::vector<Skill>& skills) {
    std::vector<Skill> dots;
    for (const DotRun& run : hourDotRuns(sessions, now, skills))
        dots.insert(dots.end(), static_cast<std::size_t>(run.count), run.skill);
    return dots;
}

std::int64_t hourDotCount(const std::vector<Session>& sessions, Date now) {
    return secondsAllTime(sessions, now) / kHour;
}

} // namespace vantle::totals
