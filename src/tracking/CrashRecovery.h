// The time that the marker of a crashed run is worth.
//
// Pure functions, any thread.
#pragma once

#include "tracking/Session.h"

#include <optional>

namespace vantle::recovery {

/// Whether the marker is plausible. A negative count passes and is worth nothing.
[[nodiscard]] bool isValid(const OpenSessionMarker& marker);

/// Returns the seconds to credit: the marker's count, at most the time between its two dates.
[[nodiscard]] std::int64_t recoverableSeconds(const OpenSessionMarker& marker);

/// Returns the record to log; empty below a minute or for an implausible marker. Counts no time
/// after the last sign of life.
[[nodiscard]] std::optional<Session> recoveryCandidate(const OpenSessionMarker& marker);

} // namespace vantle::recovery
