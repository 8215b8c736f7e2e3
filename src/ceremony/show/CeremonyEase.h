// The two easing curves of the ceremony.
//
// Any thread.
#pragma once

#include <algorithm>

namespace vantle {

/// Ease-out: 1 - (1 - x)³, with x clamped to 0 to 1.
[[nodiscard]] inline double ceremonyEaseOutCubic(double x) {
    const double rest = 1 - std::clamp(x, 0.0, 1.0);
    return 1 - rest * rest * rest;
}

/// Ease-in: x², with x clamped to 0 to 1.
[[nodiscard]] inline double ceremonyEaseInQuad(double x) {
    const double held = std::clamp(x, 0.0, 1.0);
    return held * held;
}

} // namespace vantle
