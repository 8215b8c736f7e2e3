// Stretches of time that the program slept through.
#pragma once

#include "base/Clock.h"

#include <optional>

namespace vantle {

/// Finds out, from one look at the clock to the next, whether the machine slept or the program was
/// stopped in between. Plain value, one thread.
///
/// Sleep shows as uptime that grows faster than the time awake. A program that was stopped
/// (SIGSTOP, a frozen control group) shows as a look that is much later than it was due. A change
/// of the wall clock is neither.
class MissedTime {
public:
    /// How late a look may be before the program counts as stopped: more than the event loop is
    /// ever busy with one thing.
    static constexpr Seconds longestStall{20.0};

    /// Sleep below this is not looked at: the two clocks are read one after the other.
    static constexpr Seconds shortestSleep{1.0};

    /// `interval` is the time between two looks that are on time.
    MissedTime(const Clock& clock, Seconds interval);

    /// A stretch in which nothing could be observed.
    struct Stretch {
        Date from;        ///< the last look before it, by the wall clock
        Seconds length{}; ///< from that look to now, whatever became of the wall clock
        Seconds awake{};  ///< the part of it in which the machine did not sleep
    };

    /// What was missed since the last look; empty when nothing was.
    [[nodiscard]] std::optional<Stretch> sinceLastLook() const;

    /// Begins the next stretch now.
    void look();

private:
    const Clock& m_clock;
    Seconds m_interval;
    Date m_lookedAt;
    Clock::Uptime m_uptime;
};

} // namespace vantle
