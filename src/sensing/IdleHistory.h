// The recent samples of the idle counter, and what they prove.
//
// Plain values and pure functions, any thread. The counter gives the seconds since the last input
// and is sampled at intervals. It grows with time; a sample lower than the one before shows input
// in between, and the length of the pause before that input.
#pragma once

#include "base/Date.h"

#include <vector>

namespace vantle {

/// One sample of the counter.
struct IdleSample {
    Date date;
    double idleSeconds = 0;
};

/// Seconds from `earlier` to `later`; negative when the clock was set back in between.
[[nodiscard]] double gapBetween(const IdleSample& earlier, const IdleSample& later);

/// Whether there was input between two samples: the counter fell by more than half a second. Less
/// is jitter.
[[nodiscard]] bool showsInput(const IdleSample& earlier, const IdleSample& later);

/// The samples of the last 45 minutes, in the order in which they were taken.
class IdleHistory {
public:
    static constexpr double window = 2700.0; ///< seconds

    [[nodiscard]] bool empty() const { return m_samples.empty(); }
    [[nodiscard]] std::size_t size() const { return m_samples.size(); }

    /// Returns the latest sample. Requires a sample.
    [[nodiscard]] const IdleSample& last() const { return m_samples.back(); }

    void add(const IdleSample& sample) { m_samples.push_back(sample); }

    /// Drops samples older than the window.
    void forgetOld(Date now);

    /// Whole minutes from the first sample to `now`, rounded down, at least 0; 0 when empty.
    [[nodiscard]] int coverageMinutes(Date now) const;

    /// Whether the samples reach back to `cutoff` and show no absence of `threshold` seconds since.
    [[nodiscard]] bool showsPresenceSince(Date cutoff, double threshold) const;

    /// How far before a cutoff a sample may lie and still count: 1.5 poll intervals, so that the
    /// pair around the cutoff is included.
    static constexpr double margin = 15.0; ///< seconds

private:
    std::vector<IdleSample> m_samples;
};

} // namespace vantle
