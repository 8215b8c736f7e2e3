// The totals that the user reads from the log.
//
// Pure functions over records of TrackerCore::allSessions, oldest first. All of them leave out
// records that do not count as of `now` (TrackerCore::countsInTotals). Any thread.
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

struct Hours {
    double today = 0;    ///< of the records that ended on the day of `now`
    double thisWeek = 0; ///< of those that ended in the calendar week of `now`
    double allTime = 0;
};

/// A record counts entirely on the day of its end.
[[nodiscard]] Hours hours(const std::vector<Session>& sessions, Date now, const Calendar& calendar);

struct SkillTotal {
    Skill skill;
    double hours = 0;
};

/// One entry for each skill of the list, in order. Leaves out time under other skills.
[[nodiscard]] std::vector<SkillTotal> perSkillTotals(const std::vector<Session>& sessions, Date now,
                                                     const std::vector<Skill>& skills);

struct Badge {
    int hours = 0;
    Date earnedAt; ///< end of the record that reached it
    friend bool operator==(const Badge&, const Badge&) = default;
};

[[nodiscard]] std::vector<Badge> badges(const std::vector<Session>& sessions, Date now);

/// A run of `count` dots of the wall, one per full hour, in the colour of the skill that completed
/// them.
struct DotRun {
    Skill skill;
    std::int64_t count = 0;
};

/// The wall of hours as runs, which keeps years of work small. `skills` gives names and colours; a
/// deleted skill has those of its seed, or grey.
[[nodiscard]] std::vector<DotRun> hourDotRuns(const std::vector<Session>& sessions, Date now,
                                              const std::vector<Skill>& skills);

/// The wall dot by dot.
[[nodiscard]] std::vector<Skill> hourDots(const std::vector<Session>& sessions, Date now,
                                          const std::vector<Skill>& skills);

/// The number of dots: whole hours of all time.
[[nodiscard]] std::int64_t hourDotCount(const std::vector<Session>& sessions, Date now);

/// The sum of counted seconds.
[[nodiscard]] std::int64_t secondsAllTime(const std::vector<Session>& sessions, Date now);

} // namespace vantle::totals
