#include "base/MissedTime.h"

namespace vantle {

MissedTime::MissedTime(const Clock& clock, Seconds interval)
    : m_clock(clock)
    , m_interval(interval) {
    look();
}

std::optional<MissedTime::Stretch> MissedTime::sinceLastLook() const {
    const Clock::Uptime uptime = m_clock.uptime();
    const Seconds total = uptime.total - m_uptime.total;
    const Seconds awake = uptime.awake - m_uptime.awake;
    if (total - awake < shortestSleep && awake < m_interval + longestStall) return std::nullopt;
    return Stretch{m_lookedAt, total, awake};
}

void MissedTime::look() {
    m_lookedAt = m_clock.now();
    m_uptime = m_clock.uptime();
}

} // namespace vantle
