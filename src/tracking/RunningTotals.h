// Badges and the wall of hours, counted one record after the other, for whoever walks over the log
// for more than these. The records come oldest first and have to count; nothing is checked here.
//
// Any thread.
#pragma once

#include "tracking/Session.h"
#include "tracking/Totals.h"

#include <vector>

namespace vantle::totals {

class BadgeTally {
public:
    void add(const Session& session) {
        m_seconds += session.activeSeconds;
        if (m_seconds >= m_nextRung) earn(session.endedAt);
    }

    [[nodiscard]] const std::vector<Badge>& earned() const { return m_earned; }

private:
    void earn(Date endedAt);

    std::int64_t m_seconds = 0;
    std::int64_t m_nextRung = rungSeconds(0);
    std::vector<Badge> m_earned;

    /// The sum that the rung asks for; out of reach past the last.
    [[nodiscard]] static std::int64_t rungSeconds(std::size_t rung);
};

class DotTally {
public:
    /// The list gives names and colours, and must outlive the tally.
    explicit DotTally(const std::vector<Skill>& skills) : m_skills(skills) {}

    void add(const Session& session);

    [[nodiscard]] std::vector<DotRun> takeRuns() { return std::move(m_runs); }

private:
    [[nodiscard]] const Skill& shown(const QString& id);

    const std::vector<Skill>& m_skills;
    std::vector<Skill>
        m_known; ///< to find out how to show a deleted skill costs more than the rest
    std::int64_t m_carry = 0;
    std::vector<DotRun> m_runs;
};

} // namespace vantle::totals
