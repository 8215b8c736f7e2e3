// The detection of time that the program slept through.
#pragma once

#include "base/Clock.h"

#include <optional>

namespace vantle {

/// Detects, from one reading of the clock to the next, that the machine slept or that the program
/// was stopped. Plain value, one thread.
///
/// Sleep shows as uptime that grows faster than the time awake. A stopped program (SIGSTOP, a
/// frozen cgroup) shows as a reading much later than due. A change of the wall clock is neither.
class MissedTime {
public:
    /// A reading later than this counts as a stopped program; the event loop never blocks that
    /// long.
    static constexpr Seconds longestStall{20.0};

    /// Shorter sleep is ignored, since the two clocks are read one after the other.
    static constexpr Seconds shortestSleep{1.0};

    /// `interval` is the time between two readings that are on time.
    MissedTime(const Clock& clock, Seconds interval);

    /// A stretch without observation.
    struct Stretch {
        Date from;        ///< the last reading before it, by the wall clock
        Seconds length{}; ///< from that reading to now; changes of the wall clock do not affect it
        Seconds awake{};  ///< the part of it in which the machine was awake
    };

    /// Returns what was missed since the last reading; empty when nothing was.
    [[nodiscard]] std::optional<Stretch> sinceLastLook() const;

    /// Records a reading now.
    void look();

private:
    const Clock& m_clock;
    Seconds m_interval;
    Date m_lookedAt;
    Clock::Uptime m_uptime;
};

} // namespace vantle
