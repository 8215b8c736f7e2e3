#include "sensing/PromptMemory.h"

namespace vantle {

bool PromptMemory::mayPrompt(const QString& bundleId, Date now) const {
    if (m_promptedThisLaunch.contains(bundleId)) return false;
    const auto until = m_cooldownUntil.constFind(bundleId);
    if (until != m_cooldownUntil.cend() && now < *until) return false;
    return !m_lastResolvedAt || now - *m_lastResolvedAt >= Seconds(spacingSeconds);
}

void PromptMemory::noteResolved(const QString& bundleId, Date now) {
    m_promptedThisLaunch.insert(bundleId);
    m_cooldownUntil[bundleId] = now + Seconds(cooldownSeconds);
    m_lastResolvedAt = now;
}

} // namespace vantle
