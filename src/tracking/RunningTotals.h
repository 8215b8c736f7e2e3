// Badges and the wall of hours, counted record by record.
//
// For callers that walk over the log for more than these. Requires records that count, oldest
// first; checks neither. Any thread.
#pragma once

#include "tracking/Session.h"
#include "tracking/SkillNumbers.h"
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

    /// The seconds that the rung requires; the maximum past the last rung.
    [[nodiscard]] static std::int64_t rungSeconds(std::size_t rung);
};

/// The records must outlive it unchanged.
class DotTally {
public:
    void add(const Session& session);

    /// Returns the wall so far; `skills` gives names and colours.
    [[nodiscard]] std::vector<DotRun> runs(const std::vector<Skill>& skills) const;

private:
    /// A run with its skill's number, since there are very many.
    struct Run {
        std::size_t skill = 0;
        std::int64_t count = 0;
    };

    SkillNumbers m_skills;
    std::vector<Run> m_runs;
    std::int64_t m_carry = 0; ///< seconds of the hour in progress
};

} // namespace vantle::totals
