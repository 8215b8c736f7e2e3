// The grids of days in a review's calendar: week, month, year.
//
// Plain values and pure functions, any thread. A calendar without weeks gives empty grids.
#pragma once

#include "base/Calendar.h"
#include "review/stats/WrappedStats.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace vantle {

struct GridDay {
    Date date; ///< its first moment
    double hours = 0;
    bool isFuture = false;              ///< after today
    std::optional<std::uint32_t> color; ///< 0xRRGGBB of the skill with the most time
    bool isToday = false;
    friend bool operator==(const GridDay&, const GridDay&) = default;
};

/// The hours of each day, the calendar and today.
struct RhythmDays {
    struct Worked {
        Date day; ///< its first moment
        double hours = 0;
        std::optional<std::uint32_t> color;
    };

    Date now;
    Calendar calendar;
    std::vector<Worked> worked; ///< oldest first; days that are missing have no hours

    [[nodiscard]] static RhythmDays of(const WrappedStats& stats, const WrappedSettings& settings);
};

namespace rhythmshape {

/// Seven days from the calendar's first weekday; blanks are days of another month or year.
using Week = std::array<std::optional<GridDay>, 7>;

/// The seven days of the period's week, or of this week for today. Empty for all time.
[[nodiscard]] std::vector<GridDay> weekDays(WrappedPeriod period, const RhythmDays& days);

/// The weeks of this month.
[[nodiscard]] std::vector<Week> monthWeeks(const RhythmDays& days);

/// The weeks of a year: 53, or 54 in a leap year that starts on the last weekday. Days belong to
/// the year of their date, even when their week is numbered in another.
[[nodiscard]] std::vector<Week> yearWeeks(int year, const RhythmDays& days);

/// The days of each month, without blanks.
[[nodiscard]] std::vector<std::vector<GridDay>> yearMonths(int year, const RhythmDays& days);

/// Splits consecutive days into weeks.
[[nodiscard]] std::vector<Week> inWeeks(const std::vector<GridDay>& days, const Calendar& calendar);

/// The year by the wall clock, in the user's calendar.
[[nodiscard]] int yearOf(Date date, const Calendar& calendar);

} // namespace rhythmshape
} // namespace vantle
