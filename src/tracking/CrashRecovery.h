// What a marker left by a crash is worth. Pure functions, any thread.
#pragma once

#include "tracking/Session.h"

#include <optional>

namespace vantle::recovery {

/// Whether the marker can be believed at all. A negative count passes and is worth nothing.
[[nodiscard]] bool isValid(const OpenSessionMarker& marker);

/// The seconds that a recovery would credit: what the marker claims, but no more than lie between
/// its own two dates.
[[nodiscard]] std::int64_t recoverableSeconds(const OpenSessionMarker& marker);

/// The record that a recovery would log; empty below a minute or when the marker is not valid.
/// Neither the crash nor the time after the last sign of life is counted.
[[nodiscard]] std::optional<Session> recoveryCandidate(const OpenSessionMarker& marker);

} // namespace vantle::recovery
