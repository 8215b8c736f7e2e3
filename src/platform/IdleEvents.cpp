#include "platform/IdleEvents.h"

#include "base/MissedTime.h"

#include <algorithm>

namespace vantle {

IdleEvents::IdleEvents(const Clock& clock)
    : m_clock(clock)
    , m_eventAt(clock.uptime().awake)
    , m_input(clock.uptime()) {}

void IdleEvents::idled() {
    const Clock::Uptime now = m_clock.uptime();
    const Seconds inputAt = now.awake - shortWhile;
    // Input before the last known moment precedes any sleep since. For later input the order is
    // unknown: the user counts as back.
    if (inputAt > m_input.awake)
        m_input = {now.total - shortWhile, inputAt};
    else
        m_input = {m_input.total - (m_input.awake - inputAt), inputAt};
    m_isIdle = true;
    m_eventAt = now.awake;
}

void IdleEvents::resumed() {
    m_isIdle = false;
    m_input = m_clock.uptime();
    m_eventAt = m_input.awake;
}

Seconds IdleEvents::sinceLastEvent() const { return m_clock.uptime().awake - m_eventAt; }

double IdleEvents::secondsSinceLastInput() {
    const Clock::Uptime now = m_clock.uptime();
    if (m_isIdle) return (now.total - m_input.total).count();
    const Seconds awake = now.awake - m_input.awake;
    const Seconds slept = now.total - m_input.total - awake;
    // There was input within `shortWhile`; before a sleep, if that lies within it.
    if (slept >= MissedTime::shortestSleep && awake < shortWhile)
        return (now.total - m_input.total).count();
    m_input = now;
    return 0;
}

} // namespace vantle
