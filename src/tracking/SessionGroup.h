// Close sessions of one skill shown as one row. Pure, any thread.
#pragma once

#include "tracking/Session.h"

#include <vector>

namespace vantle {

struct SessionGroup {
    QUuid id;                 ///< of its first session
    QString skillId;          ///< shared by all
    Date endedAt;             ///< of its last session
    std::int64_t seconds = 0; ///< active seconds together
    bool allManual = true;    ///< whether all were logged by hand

    /// Merges sessions, in the given order, that follow one of the same skill within less than
    /// three minutes. Only the newest group can take a session.
    [[nodiscard]] static std::vector<SessionGroup> grouped(const std::vector<Session>& sessions);
};

} // namespace vantle
