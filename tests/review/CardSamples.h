// The settings and weeks that the tests of the cards look at.
#pragma once

#include "review/stats/ReviewSamples.h"

namespace vantle::samples {

inline const WrappedSettings& settings() {
    static const WrappedSettings settings = settingsAt("2026-03-11T14:00:00Z");
    return settings;
}

inline WrappedStats week(const std::vector<Session>& log) {
    return WrappedStats::compute(log, WrappedPeriod::Week, settings());
}

} // namespace vantle::samples
