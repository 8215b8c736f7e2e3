#include "tracking/RunningTotals.h"

#include "tracking/SkillList.h"

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
    const std::size_t skill = m_skills.of(session.skillId);
    if (!m_runs.empty() && m_runs.back().skill == skill)
        m_runs.back().count += finished;
    else
        m_runs.push_back({skill, finished});
}

std::vector<DotRun> DotTally::runs(const std::vector<Skill>& skills) const {
    std::vector<Skill> shown;
    shown.reserve(m_skills.count());
    for (std::size_t number = 0; number < m_skills.count(); ++number)
        shown.push_back(SkillList::display(m_skills.idOf(number), skills));
    std::vector<DotRun> runs;
    runs.reserve(m_runs.size());
    for (const Run& run : m_runs)
        runs.push_back({shown[run.skill], run.count});
    return runs;
}

} // namespace vantle::totals
