// Dates in the form of the data files.
//
// `YYYY-MM-DDThh:mm:ssZ`: UTC, whole seconds, exactly 20 bytes. Pure functions, any thread, no
// allocation.
#pragma once

#include "base/Date.h"

#include <array>
#include <optional>
#include <string_view>

namespace vantle::iso8601 {

inline constexpr std::size_t kLength = 20;

/// Returns the text of `date`, rounded down to a second. Empty when `date` is not finite or its
/// year is outside 1 to 9999.
[[nodiscard]] std::optional<std::array<char, kLength>> format(Date date);

/// Returns the date of `text`. Empty for any other form: fractions, offsets, lower-case letters,
/// days that do not exist, second 60 and year 0 are refused.
[[nodiscard]] std::optional<Date> parse(std::string_view text);

/// Parses like `parse`, faster for runs of dates on one day. One parser per thread.
class Parser {
public:
    [[nodiscard]] std::optional<Date> parse(std::string_view text);

private:
    static constexpr std::size_t kDayLength = 11; ///< "2026-03-01T"

    std::array<char, kDayLength> m_day{};
    double m_startOfDay = 0; ///< of m_day, in seconds since 1970
};

} // namespace vantle::iso8601
