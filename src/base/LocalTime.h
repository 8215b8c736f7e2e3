// Days and hours by the wall clock, for many moments in a row.
//
// Calendar answers one question by one call of ICU, some microseconds each. Whoever walks over
// years of records asks here: ICU tells only when the clocks changed, and between two changes a day
// is arithmetic. The answers are the same.
#pragma once

#include "base/Calendar.h"
#include "base/Date.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace vantle {

namespace localtime {

/// A day by its number: 0 is 1970-01-01 on the wall, whatever the zone.
using Day = std::int64_t;

inline constexpr std::int64_t kSecondsPerDay = 86400;

} // namespace localtime

/// The wall clock of one calendar. An unknown zone is read as UTC, and has no weeks, as in
/// Calendar. Moments beyond some 28,000 years are taken for the last that can be told. Keeps what
/// it asked, so an object is for one thread at a time.
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

    /// What the wall clock shows at `date`; fractions of a second are cut off downwards.
    [[nodiscard]] Moment at(Date date) {
        const std::int64_t seconds = wholeSeconds(date);
        if (seconds < m_stretch.from || seconds >= m_stretch.until) m_stretch = stretchAt(seconds);
        const std::int64_t wall = seconds + m_stretch.offset;
        const std::int64_t second = (wall % localtime::kSecondsPerDay + localtime::kSecondsPerDay) %
                                    localtime::kSecondsPerDay;
        return {(wall - second) / localtime::kSecondsPerDay, static_cast<int>(second)};
    }

    /// The first moment of the day: midnight, the first of two, or the moment after the gap where a
    /// change of the clock skips midnight.
    [[nodiscard]] Date startOfDay(localtime::Day day);

    /// The first moment of the day after the one that holds `date`.
    [[nodiscard]] Date endOfDay(Date date) { return startOfDay(at(date).day + 1); }

    /// The year of the day, as the user's calendar counts years: the Gregorian, or the locale's
    /// own, as the Persian in fa_IR.
    [[nodiscard]] int yearOf(localtime::Day day);

    /// The first day of the month that holds `day`, and of a year; months and years as above.
    [[nodiscard]] localtime::Day firstOfMonth(localtime::Day day);
    [[nodiscard]] localtime::Day firstOfYear(int year);

    /// The first day of the week that holds `day`, by the calendar's rules. Empty in an unknown
    /// zone.
    [[nodiscard]] std::optional<localtime::Day> firstOfWeek(localtime::Day day) const;

private:
    /// Between two changes of the clock, in seconds since 1970 UTC; `until` is outside.
    struct Stretch {
        std::int64_t from = 0;
        std::int64_t until = 0;
        std::int64_t offset = 0; ///< east of UTC
    };

    struct Zone;
    struct Years;
    [[nodiscard]] const Years& years();

    /// Keeps all arithmetic on whole seconds within its range, and years within std::chrono's.
    static constexpr double kEnd = 9e11;

    static std::int64_t wholeSeconds(Date date) {
        const double seconds = epochSeconds(date);
        if (!(seconds > -kEnd)) return static_cast<std::int64_t>(-kEnd); // what is no number, too
        if (seconds >= kEnd) return static_cast<std::int64_t>(kEnd);
        const auto whole = static_cast<std::int64_t>(seconds);
        return whole - (static_cast<double>(whole) > seconds ? 1 : 0);
    }

    Stretch stretchAt(std::int64_t seconds);
    [[nodiscard]] Stretch askedStretch(std::int64_t seconds) const;

    const QString m_locale;
    int m_firstWeekday;
    std::unique_ptr<const Zone> m_zone; ///< none where the zone is unknown
    Stretch m_stretch;                  ///< of the last question
    std::vector<Stretch> m_known;       ///< all that were asked for, in order
    std::unique_ptr<Years> m_years;     ///< made at the first question about a year or month
    int m_year = 0;                     ///< of the last question, with its days
    localtime::Day m_yearBegin = 0;
    localtime::Day m_yearEnd = 0;
};

} // namespace vantle
