// The two roundings of seconds to whole numbers.
//
// Pure functions, any thread.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace vantle {

/// Returns `value` truncated toward zero. Values beyond the range are clamped and NaN gives 0, so
/// that a broken clock cannot cause undefined behaviour.
[[nodiscard]] inline std::int64_t truncatedToInteger(double value) {
    constexpr double kLimit = 9223372036854775808.0; // 2^63, the first double that is too large
    if (std::isnan(value)) return 0;
    if (value >= kLimit) return std::numeric_limits<std::int64_t>::max();
    if (value < -kLimit) return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
}

/// Returns `value` rounded to nearest, halves away from zero; clamped like truncatedToInteger.
[[nodiscard]] inline std::int64_t roundedToInteger(double value) {
    return truncatedToInteger(std::round(value));
}

} // namespace vantle
