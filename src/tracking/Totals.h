// The numbers that the person sees from the log.
//
// Pure functions over records as TrackerCore::allSessions gives them, oldest first. Records that do
// not count as of `now` (TrackerCore::countsInTotals) are left out everywhere. Any thread.
#pragma once

#include "base/Calendar.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <array>
#include <vector>

namespace vantle::totals {

/// Round totals that earn a badge, in hours.
inline constexpr std::array<int, 10> milestoneLadder = {10,  25,   50,   100,  250,
                                                        500, 1000, 2500, 5000, 10000};

/// Hours that ended since the start of the day of `now`. A record belongs whole to the day on which
/// it ended.
[[nodiscard]] double hoursToday(const std::vector<Session>& sessions, Date now,
                                const Calendar& calendar);

/// Hours that ended since the start of the calendar's week of `now`.
[[nodiscard]] double hoursThisWeek(const std::vector<Session>& sessions, Date now,
                                   const Calendar& calendar);

[[nodiscard]] double hoursAllTime(const std::vector<Session>& sessions, Date now);

struct SkillTotal {
    Skill skill;
    double hours = 0;
};

/// One entry for each skill of the list, in its order. Time under other skills is in no entry.
[[nodiscard]] std::vector<SkillTotal> perSkillTotals(const std::vector<Session>& sessions, Date now,
                                                     const std::vector<Skill>& skills);

struct Badge {
    int hours = 0;
    Date earnedAt; ///< end of the record that reached it
    friend bool operator==(const Badge&, const Badge&) = default;
};

[[nodiscard]] std::vector<Badge> badges(const std::vector<Session>& sessions, Date now);

/// Stretches of the wall of one skill: `count` dots, each a full hour, in the colour of the record
/// that completed it.
struct DotRun {
    Skill skill;
    std::int64_t count = 0;
};

/// The wall of hours as runs of one skill, so that years of work stay small. `skills` gives the
/// names and colours; deleted skills keep those of their seed, or go grey.
[[nodiscard]] std::vector<DotRun> hourDotRuns(const std::vector<Session>& sessions, Date now,
                                              const std::vector<Skill>& skills);

/// The wall dot by dot.
[[nodiscard]] std::vector<Skill> hourDots(const std::vector<Session>& sessions, Date now,
                                          const std::vector<Skill>& skills);

/// How many dots the wall has: the whole hours of all time.
[[nodiscard]] std::int64_t hourDotCount(const std::vector<Session>& sessions, Date now);

/// The seconds that count, all together.
[[nodiscard]] std::int64_t secondsAllTime(const std::vector<Session>& sessions, Date now);

} // namespace vantle::totals
