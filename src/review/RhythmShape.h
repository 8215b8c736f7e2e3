// The calendar of a review as grids of days: a week, a month, a year.
//
// Plain values and pure functions, any thread. A calendar that knows no weeks gives empty grids.
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
    std::optional<std::uint32_t> color; ///< 0xRRGGBB of what the day was spent on most
    bool isToday = false;
    friend bool operator==(const GridDay&, const GridDay&) = default;
};

/// What the days of a log held, and from where they are looked at.
struct RhythmDays {
    struct Worked {
        Date day; ///< its first moment
        double hours = 0;
        std::optional<std::uint32_t> color;
    };

    Date now;
    Calendar calendar;
    std::vector<Worked> worked; ///< oldest first; other days have no hours

    [[nodiscard]] static RhythmDays of(const WrappedStats& stats, const WrappedSettings& settings);
};

namespace rhythmshape {

/// Seven days from the calendar's first weekday on; a blank is a day of another month or year.
using Week = std::array<std::optional<GridDay>, 7>;

/// Seven days from the start of the period; for today, those of this week. Empty for all time.
[[nodiscard]] std::vector<GridDay> weekDays(WrappedPeriod period, const RhythmDays& days);

/// This month.
[[nodiscard]] std::vector<Week> monthWeeks(const RhythmDays& days);

/// A whole year: 53 weeks as a rule, 54 in a leap year that begins on a week's last day. Days go by
/// their date, also where their week counts for the year before or after.
[[nodiscard]] std::vector<Week> yearWeeks(int year, const RhythmDays& days);

/// The days of the year's months, without blanks.
[[nodiscard]] std::vector<std::vector<GridDay>> yearMonths(int year, const RhythmDays& days);

/// A stretch of days, in order and without gaps, as weeks.
[[nodiscard]] std::vector<Week> inWeeks(const std::vector<GridDay>& days, const Calendar& calendar);

/// The year on the wall clock, as the user's calendar counts it.
[[nodiscard]] int yearOf(Date date, const Calendar& calendar);

} // namespace rhythmshape
} // namespace vantle
