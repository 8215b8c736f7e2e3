// A point in time and a length of time, both in double seconds.
//
// Plain values, usable on any thread. A Date counts seconds since 1970-01-01T00:00:00 UTC without
// leap seconds; fractions are kept in memory and dropped in files (see Iso8601.h).
#pragma once

#include <chrono>

namespace vantle {

using Seconds = std::chrono::duration<double>;
using Date = std::chrono::sys_time<Seconds>;

[[nodiscard]] constexpr Date dateFromEpoch(double secondsSince1970) {
    return Date(Seconds(secondsSince1970));
}

[[nodiscard]] constexpr double epochSeconds(Date date) { return date.time_since_epoch().count(); }

} // namespace vantle
