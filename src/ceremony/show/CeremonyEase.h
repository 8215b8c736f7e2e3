// The two curves that the ceremony moves by. Any thread.
#pragma once

#include <algorithm>

namespace vantle {

/// Quick first, then slower: 1 - (1 - x)³, with x held within 0 to 1.
[[nodiscard]] inline double ceremonyEaseOutCubic(double x) {
    const double rest = 1 - std::clamp(x, 0.0, 1.0);
    return 1 - rest * rest * rest;
}

/// Slow first, then quicker: x², with x held within 0 to 1.
[[nodiscard]] inline double ceremonyEaseInQuad(double x) {
    const double held = std::clamp(x, 0.0, 1.0);
    return held * held;
}

} // namespace vantle
