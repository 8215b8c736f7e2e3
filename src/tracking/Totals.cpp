#include "tracking/Totals.h"

#include "tracking/RunningTotals.h"
#include "tracking/TrackerCore.h"

namespace vantle::totals {

namespace {

constexpr std::int64_t kHour = 3600;

double asHours(std::int64_t seconds) { return static_cast<double>(seconds) / 3600.0; }

double hoursSince(const std::vector<Session>& sessions, Date now, Date since) {
    std::int64_t seconds = 0;
    for (const Session& session : sessions)
        if (session.endedAt >= since && TrackerCore::countsInTotals(session, now))
            seconds += session.activeSeconds;
    return asHours(seconds);
}

} // namespace

double hoursToday(const std::vector<Session>& sessions, Date now, const Calendar& calendar) {
    return hoursSince(sessions, now, calendar.startOfDay(now));
}

double hoursThisWeek(const std::vector<Session>& sessions, Date now, const Calendar& calendar) {
    const auto week = calendar.startOfWeek(now);
    return hoursSince(sessions, now, week ? *week : calendar.startOfDay(now));
}

double hoursAllTime(const std::vector<Session>& sessions, Date now) {
    return asHours(secondsAllTime(sessions, now));
}

std::int64_t secondsAllTime(const std::vector<Session>& sessions, Date now) {
    std::int64_t seconds = 0;
    for (const Session& session : sessions)
        if (TrackerCore::countsInTotals(session, now)) seconds += session.activeSeconds;
    return seconds;
}

std::vector<SkillTotal> perSkillTotals(const std::vector<Session>& sessions, Date now,
                                       const std::vector<Skill>& skills) {
    std::vector<std::int64_t> seconds(skills.size(), 0);
    for (const Session& session : sessions) {
        if (!TrackerCore::countsInTotals(session, now)) continue;
        for (std::size_t i = 0; i < skills.size(); ++i) {
            if (skills[i].id != session.skillId) continue;
            seconds[i] += session.activeSeconds;
            break;
        }
    }
    std::vector<SkillTotal> entries;
    for (std::size_t i = 0; i < skills.size(); ++i)
        entries.push_back({skills[i], asHours(seconds[i])});
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
