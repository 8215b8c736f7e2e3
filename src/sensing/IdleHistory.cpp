#include "sensing/IdleHistory.h"

#include "base/Rounding.h"

#include <algorithm>
#include <limits>

namespace vantle {
namespace {

constexpr double kJitter = 0.5; // seconds

/// Whether an absence of at least `threshold` seconds ended between the two samples, too short to
/// show at its full length in either.
bool hidesAbsence(const IdleSample& a, const IdleSample& b, double threshold) {
    return showsInput(a, b) && gapBetween(a, b) + a.idleSeconds >= threshold;
}

} // namespace

double gapBetween(const IdleSample& earlier, const IdleSample& later) {
    return (later.date - earlier.date).count();
}

bool showsInput(const IdleSample& earlier, const IdleSample& later) {
    return later.idleSeconds + kJitter < earlier.idleSeconds;
}

void IdleHistory::forgetOld(Date now) {
    const Date oldest = now - Seconds(window);
    // Erases by date, not from the front: a changed clock leaves the samples unordered.
    std::erase_if(m_samples, [oldest](const IdleSample& sample) { return sample.date < oldest; });
}

int IdleHistory::coverageMinutes(Date now) const {
    if (m_samples.empty()) return 0;
    const double seconds = (now - m_samples.front().date).count();
    const std::int64_t minutes = truncatedToInteger(seconds / 60.0);
    return static_cast<int>(std::clamp<std::int64_t>(minutes, 0, std::numeric_limits<int>::max()));
}

bool IdleHistory::showsPresenceSince(Date cutoff, double threshold) const {
    // A sample must cover the moment of the cutoff.
    const bool reachesBack = std::ranges::any_of(
        m_samples, [cutoff](const IdleSample& sample) { return sample.date <= cutoff; });
    if (!reachesBack) return false;

    // And samples must cover the time after it.
    std::vector<IdleSample> recent;
    std::ranges::copy_if(m_samples, std::back_inserter(recent), [&](const IdleSample& sample) {
        return sample.date >= cutoff - Seconds(margin);
    });
    const auto inWindow = [cutoff](const IdleSample& sample) { return sample.date >= cutoff; };
    if (std::ranges::none_of(recent, inWindow)) return false;

    // No sample shows an absence.
    for (const IdleSample& sample : recent)
        if (inWindow(sample) && sample.idleSeconds >= threshold) return false;

    // No absence fits between two samples, and the clock never ran backwards.
    for (std::size_t i = 1; i < recent.size(); ++i) {
        const IdleSample& a = recent[i - 1];
        const IdleSample& b = recent[i];
        if (gapBetween(a, b) < 0 || hidesAbsence(a, b, threshold)) return false;
    }
    return true;
}

} // namespace vantle
