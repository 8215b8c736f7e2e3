// The one walk over the whole log that a review makes.
//
// A review of a single day still shows the calendar of all days, and the badges are counted from
// the beginning. All of that is gathered here in one go, since reading a million records from
// memory is most of what it costs. Pure, any thread.
#pragma once

#include "review/stats/DayLedger.h"
#include "review/stats/SessionRefs.h"
#include "review/stats/SkillNumbers.h"
#include "tracking/Totals.h"

#include <limits>
#include <vector>

namespace vantle {

/// Moments from `start` on and before `end`.
struct Interval {
    Date start = dateFromEpoch(-std::numeric_limits<double>::infinity());
    Date end = dateFromEpoch(std::numeric_limits<double>::infinity());

    [[nodiscard]] bool contains(Date date) const { return date >= start && date < end; }

    [[nodiscard]] static Interval none() { return {Interval().end, Interval().start}; }
};

struct LogWalk {
    std::vector<const Session*> period;      ///< records that count and ended in the period
    std::vector<const Session*> thisWeek;    ///< ended in that week, whether they count or not
    std::vector<const Session*> earlierWeek; ///< the same
    std::vector<totals::Badge> badges;       ///< of all that count
    SkillNumbers skills;                     ///< those in `days`
    DayLedger days;                          ///< of all that count

    /// What the walk looks for.
    struct Plan {
        Date now;
        Interval period;
        Interval thisWeek = Interval::none();
        Interval earlierWeek = Interval::none();
    };

    LogWalk(const std::vector<Session>& sessions, const Plan& plan, LocalTime& local);
};

} // namespace vantle
