#include "app/PanelState.h"

#include "app/WeeklyReview.h"
#include "base/Clock.h"
#include "platform/Preferences.h"
#include "sensing/IdleMonitor.h"
#include "tracking/NotificationCenter.h"
#include "tracking/TrackerCore.h"

namespace vantle {

PanelState::PanelState(const Environment& environment) : m_env(environment) {
    connect(&m_env.notifications, &NotificationCenter::HFSessionsChanged, this,
            [this] { m_reviewOfWeek.reset(); });
}

void PanelState::refresh() {
    const Date now = m_env.clock.now();
    const auto week = weeklyreview::unseenLastWeek(now, m_env.calendar(), m_env.preferences);
    if (week && (!m_reviewOfWeek || m_reviewOfWeek->first != week->start))
        m_reviewOfWeek.emplace(week->start,
                               weeklyreview::holdsAReview(m_env.tracker.allSessions(), *week));
    const bool ready = week && m_reviewOfWeek->second;
    if (std::exchange(m_wrappedReady, ready) != ready) Q_EMIT wrappedReadyChanged();
    const int coverage = m_env.idle.coverageMinutes(now);
    if (std::exchange(m_backfillCoverageMinutes, coverage) != coverage)
        Q_EMIT backfillCoverageMinutesChanged();
}

void PanelState::setPulsePrimaryOnce(bool pulse) {
    if (std::exchange(m_pulsePrimaryOnce, pulse) != pulse) Q_EMIT pulsePrimaryOnceChanged();
}

} // namespace vantle
