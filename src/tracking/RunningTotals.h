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
    void add(const Session& session);

    /// The wall so far; `skills` gives names and colours.
    [[nodiscard]] std::vector<DotRun> runs(const std::vector<Skill>& skills) const;

private:
    /// A run by the place of its skill in `m_ids`: a few numbers for each of very many.
    struct Run {
        std::size_t skill = 0;
        std::int64_t count = 0;
    };

    [[nodiscard]] std::size_t placeOf(const QString& skillId);

    std::vector<QString> m_ids;
    std::vector<Run> m_runs;
    std::int64_t m_carry = 0; ///< seconds short of an hour
};

} // namespace vantle::totals
