#include "tracking/RunningTotals.h"

#include "tracking/SkillList.h"

#include <algorithm>
#include <limits>

namespace vantle::totals {

namespace {

constexpr std::int64_t kHour = 3600;

} // namespace

std::int64_t BadgeTally::rungSeconds(std::size_t rung) {
    return rung < milestoneLadder.size() ? milestoneLadder[rung] * kHour
                                         : std::numeric_limits<std::int64_t>::max();
}

void BadgeTally::earn(Date endedAt) {
    while (m_seconds >= m_nextRung) {
        m_earned.push_back({milestoneLadder[m_earned.size()], endedAt});
        m_nextRung = rungSeconds(m_earned.size());
    }
}

void DotTally::add(const Session& session) {
    m_carry += session.activeSeconds;
    const std::int64_t finished = m_carry / kHour;
    if (finished == 0) return;
    m_carry %= kHour;
    if (!m_runs.empty() && m_runs.back().skill.id == session.skillId)
        m_runs.back().count += finished;
    else
        m_runs.push_back({shown(session.skillId), finished});
}

const Skill& DotTally::shown(const QString& id) {
    const auto found = std::ranges::find(m_known, id, &Skill::id);
    return found != m_known.end() ? *found : m_known.emplace_back(SkillList::display(id, m_skills));
}

} // namespace vantle::totals
