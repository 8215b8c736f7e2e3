// The two ways in which seconds become whole numbers. Any thread.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace vantle {

/// `value` as an integer, fractions cut off toward zero. Values outside the range of the integer
/// give its nearest end, and what is not a number gives 0, so that a broken clock cannot cause
/// undefined behaviour.
[[nodiscard]] inline std::int64_t truncatedToInteger(double value) {
    constexpr double kLimit = 9223372036854775808.0; // 2^63, the first double that is too large
    if (std::isnan(value)) return 0;
    if (value >= kLimit) return std::numeric_limits<std::int64_t>::max();
    if (value < -kLimit) return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
}

/// `value` rounded to the nearest integer, halves away from zero; the ends as above.
[[nodiscard]] inline std::int64_t roundedToInteger(double value) {
    return truncatedToInteger(std::round(value));
}

} // namespace vantle
