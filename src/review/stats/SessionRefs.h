// A selection of log records by pointer.
//
// A log of years has a million records, of which most figures need a part. The list must outlive
// the selection unchanged. Any thread.
#pragma once

#include "tracking/Session.h"

#include <span>
#include <vector>

namespace vantle {

using SessionRefs = std::span<const Session* const>;

/// All records of the list, in order.
[[nodiscard]] inline std::vector<const Session*> refsTo(const std::vector<Session>& sessions) {
    std::vector<const Session*> refs;
    refs.reserve(sessions.size());
    for (const Session& session : sessions)
        refs.push_back(&session);
    return refs;
}

/// A temporary would leave dangling pointers.
std::vector<const Session*> refsTo(std::vector<Session>&&) = delete;

} // namespace vantle
