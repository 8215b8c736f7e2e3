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
    const std::size_t skill = placeOf(session.skillId);
    if (!m_runs.empty() && m_runs.back().skill == skill)
        m_runs.back().count += finished;
    else
        m_runs.push_back({skill, finished});
}

std::vector<DotRun> DotTally::runs(const std::vector<Skill>& skills) const {
    std::vector<Skill> shown;
    for (const QString& id : m_ids)
        shown.push_back(SkillList::display(id, skills));
    std::vector<DotRun> runs;
    runs.reserve(m_runs.size());
    for (const Run& run : m_runs)
        runs.push_back({shown[run.skill], run.count});
    return runs;
}

std::size_t DotTally::placeOf(const QString& skillId) {
    // Records of one log share their skill texts, so comparing addresses mostly suffices.
    const auto found = std::ranges::find_if(m_ids, [&](const QString& id) {
        return id.size() == skillId.size() &&
               (id.constData() == skillId.constData() || id == skillId);
    });
    if (found != m_ids.end()) return static_cast<std::size_t>(found - m_ids.begin());
    m_ids.push_back(skillId);
    return m_ids.size() - 1;
}

} // namespace vantle::totals
