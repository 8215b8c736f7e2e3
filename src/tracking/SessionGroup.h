// Sessions of one skill that are shown as one row.
//
// Pure function, any thread.
#pragma once

#include "tracking/Session.h"

#include <cstddef>
#include <limits>
#include <vector>

namespace vantle {

struct SessionGroup {
    QUuid id;                 ///< of its first session
    QString skillId;          ///< shared by all
    Date endedAt;             ///< of its last session
    std::int64_t seconds = 0; ///< sum of active seconds
    bool allManual = true;    ///< whether all were logged by hand

    /// Merges each session that begins less than three minutes after one of the same skill. Keeps
    /// the order; only the newest group can grow. With `newest` returns no more than so many groups
    /// from the end, and costs no more than those.
    [[nodiscard]] static std::vector<SessionGroup>
    grouped(const std::vector<Session>& sessions,
            std::size_t newest = std::numeric_limits<std::size_t>::max());
};

} // namespace vantle
