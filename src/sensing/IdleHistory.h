// What a row of readings of the idle counter proves about the recent past.
//
// Plain values and pure functions, any thread. The counter tells the seconds since the last input,
// read every now and then. Between two readings it grows with time; whenever it is lower than it
// was, somebody touched the machine, and what it had reached by then is how long nobody had.
#pragma once

#include "base/Date.h"

#include <vector>

namespace vantle {

/// One reading.
struct IdleSample {
    Date date;
    double idleSeconds = 0;
};

/// Seconds from `earlier` to `later`; negative when the clock was set back in between.
[[nodiscard]] double gapBetween(const IdleSample& earlier, const IdleSample& later);

/// Whether there was input between two readings: the counter fell by more than half a second. Less
/// is jitter of the readings themselves.
[[nodiscard]] bool showsInput(const IdleSample& earlier, const IdleSample& later);

/// The readings of the last 45 minutes, in the order in which they were taken.
class IdleHistory {
public:
    static constexpr double window = 2700.0; ///< seconds

    [[nodiscard]] bool empty() const { return m_samples.empty(); }
    [[nodiscard]] std::size_t size() const { return m_samples.size(); }

    /// The latest reading. Only when not empty.
    [[nodiscard]] const IdleSample& last() const { return m_samples.back(); }

    void add(const IdleSample& sample) { m_samples.push_back(sample); }

    /// Drops the readings that are older than the window.
    void forgetOld(Date now);

    /// Whole minutes from the first reading to `now`, cut off, never below 0; 0 when empty.
    [[nodiscard]] int coverageMinutes(Date now) const;

    /// Whether the readings reach back to `cutoff`, and no absence of `threshold` seconds shows in
    /// them from then on.
    [[nodiscard]] bool showsPresenceSince(Date cutoff, double threshold) const;

    /// How far before a cutoff a reading may lie and still tell about the time after it: one and a
    /// half poll intervals, so that the pair around the cutoff is looked at too.
    static constexpr double margin = 15.0; ///< seconds

private:
    std::vector<IdleSample> m_samples;
};

} // namespace vantle
