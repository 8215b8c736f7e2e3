#include "sensing/RetagBank.h"

#include <utility>

namespace vantle {

void RetagBank::arm(const QString& bundleId, double seconds, Date now) {
    m_armed = Stay{bundleId, seconds, now};
}

void RetagBank::interrupt(Date now) {
    const std::optional<Stay> stay = std::exchange(m_armed, std::nullopt);
    if (!stay) return;
    const double left = stay->remaining - (now - stay->at).count();
    if (left > leastBankSeconds)
        m_banked = Stay{stay->bundleId, left, now};
    else
        m_banked.reset();
}

double RetagBank::takeDwell(const QString& bundleId, Date now) {
    if (!m_banked || m_banked->bundleId != bundleId) return dwellSeconds;
    const Stay stay = *std::exchange(m_banked, std::nullopt);
    return (now - stay.at).count() <= graceSeconds ? stay.remaining : dwellSeconds;
}

} // namespace vantle
