// Days and weeks in the user's time zone and locale.
//
// A plain value. All operations are pure; ICU does the (Gregorian) arithmetic. Any thread.
#pragma once

#include "base/Date.h"

#include <QString>

#include <optional>

namespace vantle {

struct Calendar {
    QString timeZone;     ///< IANA id, as in "Europe/Berlin"
    int firstWeekday = 1; ///< 1 Sunday ... 7 Saturday
    int minimalDays = 1;  ///< days that the first week must have in the new year, 1 to 7
    QString locale = QStringLiteral("en_US"); ///< ICU locale id, for names and formats

    /// Returns this machine's calendar: system time zone, week rules of the locale.
    [[nodiscard]] static Calendar current();

    /// A week's number within the year that the week belongs to.
    struct WeekOfYear {
        int yearForWeekOfYear = 0;
        int weekOfYear = 0;
        friend bool operator==(const WeekOfYear&, const WeekOfYear&) = default;
    };

    /// Returns the first moment of the day of `date`: midnight, or the moment after the gap where a
    /// clock change skips midnight. Returns `date` itself when the zone is unknown.
    [[nodiscard]] Date startOfDay(Date date) const;

    /// Returns the first moment of the week of `date`; empty when ICU cannot compute it.
    [[nodiscard]] std::optional<Date> startOfWeek(Date date) const;

    /// Moves `date` by whole weeks and keeps the wall-clock time. Empty when ICU cannot compute it.
    [[nodiscard]] std::optional<Date> addingWeeks(Date date, int weeks) const;

    /// Returns the week of `date`; empty when ICU cannot compute it.
    [[nodiscard]] std::optional<WeekOfYear> weekOfYear(Date date) const;
};

} // namespace vantle
