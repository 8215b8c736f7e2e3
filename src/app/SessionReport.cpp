#include "app/SessionReport.h"

#include "base/Clock.h"
#include "tracking/NotificationCenter.h"
#include "tracking/SkillList.h"
#include "tracking/Totals.h"
#include "tracking/TrackerCore.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vantle {

SessionReport::SessionReport(const Environment& environment) : m_env(environment) {
    for (const auto changed : {&TrackerCore::stateChanged, &TrackerCore::startedAtChanged})
        connect(&m_env.tracker, changed, this, [this] {
            m_zero.reset();
            noteChange();
        });
    connect(&m_env.skills, &SkillList::changed, this, &SessionReport::noteChange);
    connect(&m_env.notifications, &NotificationCenter::HFSessionsChanged, this, [this] {
        m_logged.reset();
        noteChange();
    });
    m_env.status.publish([this] { return read(); });
}

SessionReport::~SessionReport() { m_env.status.publish({}); }

void SessionReport::noteChange() { m_env.status.noteChange(); }

SessionStatus::Values SessionReport::read() {
    const Date now = m_env.clock.now();
    SessionStatus::Values values;
    values.asOf = static_cast<std::int64_t>(std::floor(epochSeconds(now)));
    const TrackerCore::State state = m_env.tracker.state();
    if (state != TrackerCore::State::Idle) {
        const Skill skill =
            m_env.skills.display(m_env.tracker.currentSkillId().value_or(QString()));
        values.state = state == TrackerCore::State::Running ? QStringLiteral("running")
                                                            : QStringLiteral("paused");
        values.skillName = skill.name;
        values.skillColor = QStringLiteral("#%1").arg(skill.hexRGB, 6, 16, QLatin1Char('0'));
        values.activeSeconds = activeSeconds(values.asOf);
    }
    values.todaySeconds = loggedToday(now) + values.activeSeconds;
    return values;
}

std::int64_t SessionReport::activeSeconds(std::int64_t now) {
    const std::int64_t seconds = m_env.tracker.displayActiveSeconds();
    if (m_env.tracker.state() != TrackerCore::State::Running) return seconds;
    const std::int64_t zero = now - seconds;
    if (!m_zero || std::abs(zero - *m_zero) > 1) m_zero = zero;
    return std::max<std::int64_t>(now - *m_zero, 0);
}

std::int64_t SessionReport::loggedToday(Date now) {
    const Calendar calendar = m_env.calendar();
    const Date dayStart = calendar.startOfDay(now);
    if (!m_logged || m_logged->dayStart != dayStart) {
        const double hours = totals::hours(m_env.tracker.allSessions(), now, calendar).today;
        m_logged = LoggedToday{dayStart, std::llround(hours * 3600.0)};
    }
    return m_logged->seconds;
}

} // namespace vantle
