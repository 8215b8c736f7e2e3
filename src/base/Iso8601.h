// Dates as they stand in files: `YYYY-MM-DDThh:mm:ssZ`, UTC, whole seconds, exactly 20 bytes.
//
// Pure functions, any thread, no allocation.
#pragma once

#include "base/Date.h"

#include <array>
#include <optional>
#include <string_view>

namespace vantle::iso8601 {

inline constexpr std::size_t kLength = 20;

/// The text of `date`, a fraction of a second dropped toward the past. Empty when the date has no
/// such text: it is not finite, or its year is outside 1 to 9999.
[[nodiscard]] std::optional<std::array<char, kLength>> format(Date date);

/// The date that `text` names. Empty for anything but that form: fractions, offsets, lower-case
/// letters, dates that the calendar does not have, second 60 and year 0 are all refused.
[[nodiscard]] std::optional<Date> parse(std::string_view text);

/// Reads as `parse` does, and quicker where dates of one day come one after the other. One reader a
/// thread.
class Parser {
public:
    [[nodiscard]] std::optional<Date> parse(std::string_view text);

private:
    static constexpr std::size_t kDayLength = 11; ///< "2026-03-01T"

    std::array<char, kDayLength> m_day{};
    double m_startOfDay = 0; ///< of m_day, in seconds since 1970
};

} // namespace vantle::iso8601
