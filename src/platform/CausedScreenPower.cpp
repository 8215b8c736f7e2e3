#include "platform/CausedScreenPower.h"

namespace vantle {

void CausedScreenPower::setCause(unsigned cause, bool holds) {
    const std::uint32_t bit = 1U << cause;
    const bool before = asleep();
    m_causes = holds ? m_causes | bit : m_causes & ~bit;
    if (asleep() == before) return;
    if (before)
        Q_EMIT woke();
    else
        Q_EMIT slept();
}

} // namespace vantle
