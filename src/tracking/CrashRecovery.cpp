#include "tracking/CrashRecovery.h"

#include "base/Rounding.h"
#include "base/Text.h"
#include "tracking/Skill.h"

#include <algorithm>

namespace vantle::recovery {

namespace {

/// A shorter stretch is not offered.
constexpr std::int64_t kMinSeconds = 60;

} // namespace

bool isValid(const OpenSessionMarker& marker) {
    return text::hasAtMost(marker.skillId, Skill::maxIdLength) && !marker.skillId.isEmpty() &&
           marker.activeSeconds <= kMaxSessionSeconds && marker.lastSeenAt >= marker.startedAt &&
           marker.lastSeenAt - marker.startedAt <= Seconds(kMaxSessionSeconds);
}

std::int64_t recoverableSeconds(const OpenSessionMarker& marker) {
    const Date end = std::max(marker.lastSeenAt, marker.startedAt);
    const std::int64_t span = truncatedToInteger((end - marker.startedAt).count());
    return std::min(std::max<std::int64_t>(span, 0),
                    std::max<std::int64_t>(marker.activeSeconds, 0));
}

std::optional<Session> recoveryCandidate(const OpenSessionMarker& marker) {
    if (!isValid(marker) || recoverableSeconds(marker) < kMinSeconds) return std::nullopt;
    return Session{marker.id,
                   marker.skillId,
                   marker.startedAt,
                   std::max(marker.lastSeenAt, marker.startedAt),
                   recoverableSeconds(marker),
                   QString(),
                   sourceApp()};
}

} // namespace vantle::recovery
