#include "tracking/SessionGroup.h"

#include <optional>

namespace vantle {

namespace {

/// From this gap on a session starts a new row.
constexpr Seconds kSeparateGap{180.0};

} // namespace

std::vector<SessionGroup> SessionGroup::grouped(const std::vector<Session>& sessions) {
    std::vector<SessionGroup> groups;
    groups.reserve(sessions.size());
    Date lastEnd;
    for (const Session& session : sessions) {
        const bool manual = session.source == sourceManual();
        const Seconds gap = session.startedAt - lastEnd;
        if (!groups.empty() && groups.back().skillId == session.skillId && gap >= Seconds::zero() &&
            gap < kSeparateGap) {
            SessionGroup& group = groups.back();
            group.seconds += session.activeSeconds;
            group.endedAt = session.endedAt;
            group.allManual = group.allManual && manual;
        } else {
            groups.push_back(
                {session.id, session.skillId, session.endedAt, session.activeSeconds, manual});
        }
        lastEnd = session.endedAt;
    }
    return groups;
}

} // namespace vantle
