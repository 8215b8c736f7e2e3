// Every duration that the person reads is written here.
//
// Totals are hours as a double, a single session's length is seconds as an integer; the two round
// differently on purpose. Rounding is to nearest, halves away from zero, except where printf's
// "%.1f" rounds the binary value. Pure functions; number grouping follows the locale of the
// process. Any thread.
#pragma once

#include "tracking/DurationStyle.h"

#include <QString>

#include <cstdint>

namespace vantle::dashformat {

/// "1:05", from an hour on "1:01:01"; negative counts as 0.
[[nodiscard]] QString clock(std::int64_t seconds);

struct StatValue {
    QString value;
    QString unit; ///< may be empty
};

/// A value for a large number, and the unit for a small label beside it.
[[nodiscard]] StatValue statValue(double hours, DurationStyle style);

/// One text for use within a line.
[[nodiscard]] QString inlineHours(double hours, DurationStyle style);

/// A single session's length.
[[nodiscard]] QString sessionDuration(std::int64_t seconds, DurationStyle style);

/// The first rung of the milestone ladder strictly above `hours`; its last rung from there on.
[[nodiscard]] double nextMilestone(double hours);

} // namespace vantle::dashformat
