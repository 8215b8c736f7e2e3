// The single walk over the log for a review.
//
// Reading a million records from memory is most of a review's cost, so one pass gathers everything:
// a single day's review also needs the calendar of all days, and badges count from the beginning.
// Pure, any thread.
#pragma once

#include "review/stats/DayLedger.h"
#include "review/stats/SessionRefs.h"
#include "review/stats/StartRhythm.h"
#include "tracking/RunningTotals.h"
#include "tracking/SkillNumbers.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace vantle {

/// From `start`, inclusive, to `end`, exclusive.
struct Interval {
    Date start = dateFromEpoch(-std::numeric_limits<double>::infinity());
    Date end = dateFromEpoch(std::numeric_limits<double>::infinity());

    [[nodiscard]] bool contains(Date date) const { return date >= start && date < end; }

    [[nodiscard]] static Interval none() { return {Interval().end, Interval().start}; }
};

/// Sums over the records of a period.
struct PeriodSums {
    std::int64_t trackedSeconds = 0;
    std::int64_t manualSeconds = 0;
    const Session* longest = nullptr;  ///< the first of equal ones
    std::vector<const Session*> noted; ///< records with a note, even a blank one
    StartTimes starts;
    totals::DotTally dots;

    /// Adds a record that counts; call oldest first.
    void add(const Session& session, LocalTime& local);
};

struct LogWalk {
    std::vector<const Session*> period;      ///< records that count and ended in the period
    PeriodSums sums;                         ///< of these
    std::vector<const Session*> thisWeek;    ///< ended in that week, counting or not
    std::vector<const Session*> earlierWeek; ///< the same
    std::vector<totals::Badge> badges;       ///< of all records that count
    SkillNumbers skills;                     ///< the skills in `days`
    DayLedger days;                          ///< of all records that count

    /// The input of the walk.
    struct Plan {
        Date now;
        Interval period;
        Interval thisWeek = Interval::none();
        Interval earlierWeek = Interval::none();
    };

    LogWalk(const std::vector<Session>& sessions, const Plan& plan, LocalTime& local);
};

} // namespace vantle
