// A point in time and a duration, both in double seconds.
//
// Plain values, any thread. A Date counts seconds since 1970-01-01T00:00:00 UTC without leap
// seconds; it keeps fractions in memory, files drop them (Iso8601.h).
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
