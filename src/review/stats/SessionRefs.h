// A selection of the log without copies of its records.
//
// A log of years has a million records, of which most figures want a part. The list that they stand
// in must outlive the selection and stay as it is. Any thread.
#pragma once

#include "tracking/Session.h"

#include <span>
#include <vector>

namespace vantle {

using SessionRefs = std::span<const Session* const>;

/// All records of the list, in its order.
[[nodiscard]] inline std::vector<const Session*> refsTo(const std::vector<Session>& sessions) {
    std::vector<const Session*> refs;
    refs.reserve(sessions.size());
    for (const Session& session : sessions)
        refs.push_back(&session);
    return refs;
}

/// A list that is about to go.
std::vector<const Session*> refsTo(std::vector<Session>&&) = delete;

} // namespace vantle
