// Days and hours by the wall clock, for long runs of moments.
//
// Calendar calls ICU for each answer, which takes microseconds. This class calls ICU only for the
// changes of the clock and computes days between two changes, with the same results: for walks over
// years of records.
#pragma once

#include "base/Calendar.h"
#include "base/Date.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace vantle {

namespace localtime {

/// A day number; 0 is 1970-01-01 by the wall clock, in every zone.
using Day = std::int64_t;

inline constexpr std::int64_t kSecondsPerDay = 86400;

} // namespace localtime

/// The wall clock of one calendar. An unknown zone reads as UTC and has no weeks, as in Calendar.
/// Moments beyond about 28,000 years are clamped. Caches what it asked ICU: one thread at a time.
class LocalTime {
public:
    explicit LocalTime(const Calendar& calendar);
    ~LocalTime();
    LocalTime(const LocalTime&) = delete;
    LocalTime& operator=(const LocalTime&) = delete;

    struct Moment {
        localtime::Day day = 0;
        int second = 0; ///< since midnight by the wall clock, 0 to 86399

        [[nodiscard]] int hour() const { return second / 3600; }
        [[nodiscard]] int minute() const { return second % 3600 / 60; }
    };

    [[nodiscard]] bool knowsZone() const { return m_zone != nullptr; }

    /// Returns day and second at `date`, rounded down to a second.
    [[nodiscard]] Moment at(Date date) {
        const std::int64_t seconds = wholeSeconds(date);
        if (seconds < m_stretch.from || seconds >= m_stretch.until) m_stretch = stretchAt(seconds);
        const std::int64_t wall = seconds + m_stretch.offset;
        const std::int64_t second = (wall % localtime::kSecondsPerDay + localtime::kSecondsPerDay) %
                                    localtime::kSecondsPerDay;
        return {(wall - second) / localtime::kSecondsPerDay, static_cast<int>(second)};
    }

    /// Returns the first moment of the day: midnight, the first of two midnights, or the moment
    /// after the gap where a clock change skips midnight.
    [[nodiscard]] Date startOfDay(localtime::Day day);

    /// The first moment of the day after the one that holds `date`.
    [[nodiscard]] Date endOfDay(Date date) { return startOfDay(at(date).day + 1); }

    /// Returns the year of the day in the user's calendar: Gregorian, or the locale's own, such as
    /// the Persian in fa_IR.
    [[nodiscard]] int yearOf(localtime::Day day);

    /// Returns the first day of the month of `day`, or of a year, in the same calendar.
    [[nodiscard]] localtime::Day firstOfMonth(localtime::Day day);
    [[nodiscard]] localtime::Day firstOfYear(int year);

    /// Returns the first day of the week of `day`; empty in an unknown zone.
    [[nodiscard]] std::optional<localtime::Day> firstOfWeek(localtime::Day day) const;

private:
    /// The span between two clock changes, in seconds since 1970 UTC; `until` is exclusive.
    struct Stretch {
        std::int64_t from = 0;
        std::int64_t until = 0;
        std::int64_t offset = 0; ///< east of UTC
    };

    struct Zone;
    struct Years;
    [[nodiscard]] const Years& years();

    /// Limits the arithmetic to a range where seconds are exact and years fit std::chrono.
    static constexpr double kEnd = 9e11;

    static std::int64_t wholeSeconds(Date date) {
        const double seconds = epochSeconds(date);
        if (!(seconds > -kEnd)) return static_cast<std::int64_t>(-kEnd); // NaN too
        if (seconds >= kEnd) return static_cast<std::int64_t>(kEnd);
        const auto whole = static_cast<std::int64_t>(seconds);
        return whole - (static_cast<double>(whole) > seconds ? 1 : 0);
    }

    Stretch stretchAt(std::int64_t seconds);
    [[nodiscard]] Stretch askedStretch(std::int64_t seconds) const;

    const QString m_locale;
    int m_firstWeekday;
    std::unique_ptr<const Zone> m_zone; ///< null where the zone is unknown
    Stretch m_stretch;                  ///< of the last call
    std::vector<Stretch> m_known;       ///< all stretches asked for so far, in order
    std::unique_ptr<Years> m_years;     ///< made on first use of a year or month
    int m_year = 0;                     ///< of the last call, with its days
    localtime::Day m_yearBegin = 0;
    localtime::Day m_yearEnd = 0;
};

} // namespace vantle
