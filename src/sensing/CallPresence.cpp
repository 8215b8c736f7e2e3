#include "sensing/CallPresence.h"

#include "platform/IdleInhibition.h"
#include "tracking/Settings.h"

#include <algorithm>

namespace vantle {

CallPresence::CallPresence(const Clock& clock, const Preferences& preferences, IdleSource& source,
                           IdleInhibition& inhibition)
    : m_clock(clock)
    , m_preferences(preferences)
    , m_source(source)
    , m_inhibition(inhibition) {
    connect(&m_source, &IdleSource::canTellChanged, this, &IdleSource::canTellChanged);
    connect(&m_inhibition, &IdleInhibition::changed, this, &CallPresence::noteChange);
    settings::callsCount.watch(m_preferences, this, [this] { follow(); });
    follow();
}

void CallPresence::follow() {
    m_counts = settings::callsCount.read(m_preferences);
    m_isHeld = false;
    m_row.reset();
    m_inhibition.setFollowed(m_counts);
}

std::optional<double> CallPresence::secondsSinceLastInput() {
    const std::optional<double> reading = m_source.secondsSinceLastInput();
    const Seconds now = m_clock.uptime().total;
    look(now);
    if (!m_row || !m_source.canTell()) return reading;
    const double since = (now - std::min(m_row->heldUntil, m_row->began + longest)).count();
    if (m_isHeld && since <= 0) return 0.0;
    return reading ? std::min(*reading, since) : reading;
}

void CallPresence::noteChange() {
    const Seconds now = m_clock.uptime().total;
    // A call that ends now has counted until now, not until the last reading.
    if (m_row && m_isHeld) m_row->heldUntil = now;
    look(now);
}

void CallPresence::look(Seconds now) {
    const bool wasHeld = m_isHeld;
    m_isHeld = m_counts && (m_inhibition.isHeld() || m_source.isInhibited().value_or(false));
    if (!m_isHeld) return;
    if (!m_row || (!wasHeld && now - m_row->heldUntil > pauseThatEndsRow)) m_row = Row{now, now};
    m_row->heldUntil = now;
}

} // namespace vantle
