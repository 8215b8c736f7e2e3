// The durations that the user reads.
//
// Totals are hours as a double, a single session is integer seconds; the two round differently on
// purpose. Rounds to nearest, halves away from zero, except where printf's "%.1f" rounds the binary
// value. Digits are grouped by the process's locale. Pure functions, any thread.
#pragma once

#include "tracking/DurationStyle.h"

#include <QString>

#include <cstdint>

namespace vantle::dashformat {

/// "1:05", from one hour on "1:01:01"; negative values count as 0.
[[nodiscard]] QString clock(std::int64_t seconds);

struct StatValue {
    QString value;
    QString unit; ///< may be empty
};

/// The number for large type and the unit for a small label beside it.
[[nodiscard]] StatValue statValue(double hours, DurationStyle style);

/// The duration as part of a sentence.
[[nodiscard]] QString inlineHours(double hours, DurationStyle style);

/// The length of a single session.
[[nodiscard]] QString sessionDuration(std::int64_t seconds, DurationStyle style);

/// Returns the first milestone above `hours`; the last one when there is none above.
[[nodiscard]] double nextMilestone(double hours);

} // namespace vantle::dashformat
