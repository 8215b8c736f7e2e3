#include "tracking/SessionGroup.h"

#include <algorithm>

namespace vantle {

namespace {

/// From this gap on a session starts a new row.
constexpr Seconds kSeparateGap{180.0};

/// Whether the two are of one group.
bool continues(const Session& before, const Session& session) {
    const Seconds gap = session.startedAt - before.endedAt;
    return before.skillId == session.skillId && gap >= Seconds::zero() && gap < kSeparateGap;
}

/// Returns the index of the first session of the last `newest` groups.
std::size_t firstOf(const std::vector<Session>& sessions, std::size_t newest) {
    std::size_t first = sessions.size();
    for (std::size_t groups = 0; first > 0 && groups < newest; ++groups) {
        --first;
        while (first > 0 && continues(sessions[first - 1], sessions[first]))
            --first;
    }
    return first;
}

} // namespace

std::vector<SessionGroup> SessionGroup::grouped(const std::vector<Session>& sessions,
                                                std::size_t newest) {
    const bool isWhole = newest >= sessions.size();
    const std::size_t first = isWhole ? 0 : firstOf(sessions, newest);
    std::vector<SessionGroup> groups;
    groups.reserve(std::min(newest, sessions.size()));
    for (std::size_t i = first; i < sessions.size(); ++i) {
        const Session& session = sessions[i];
        const bool manual = session.source == sourceManual();
        if (i > first && continues(sessions[i - 1], session)) {
            SessionGroup& group = groups.back();
            group.seconds += session.activeSeconds;
            group.endedAt = session.endedAt;
            group.allManual = group.allManual && manual;
        } else {
            groups.push_back(
                {session.id, session.skillId, session.endedAt, session.activeSeconds, manual});
        }
    }
    return groups;
}

} // namespace vantle
