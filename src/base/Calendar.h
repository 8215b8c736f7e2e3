// Days and weeks as the person counts them.
//
// A Calendar is a plain value: a time zone and the rules of a locale's week. All operations are
// pure; the calendar arithmetic is ICU's (Gregorian). Any thread.
#pragma once

#include "base/Date.h"

#include <QString>

#include <optional>

namespace vantle {

struct Calendar {
    QString timeZone;     ///< IANA id, as in "Europe/Berlin"
    int firstWeekday = 1; ///< 1 Sunday ... 7 Saturday
    int minimalDays = 1;  ///< days of the new year that its first week must have, 1 to 7
    QString locale = QStringLiteral("en_US"); ///< ICU locale id, for names and formats

    /// The calendar of this machine and person: system time zone, week rules of the locale.
    [[nodiscard]] static Calendar current();

    /// A week's number within the year that the week belongs to.
    struct WeekOfYear {
        int yearForWeekOfYear = 0;
        int weekOfYear = 0;
        friend bool operator==(const WeekOfYear&, const WeekOfYear&) = default;
    };

    /// The first moment of the day that holds `date`: midnight, or the moment after the gap where
    /// a change of the clock skips midnight. `date` itself if the zone is unknown.
    [[nodiscard]] Date startOfDay(Date date) const;

    /// The first moment of the week that holds `date`. Empty when the calendar can't tell.
    [[nodiscard]] std::optional<Date> startOfWeek(Date date) const;

    /// `date` moved by whole weeks with the wall clock's time kept. Empty when it can't tell.
    [[nodiscard]] std::optional<Date> addingWeeks(Date date, int weeks) const;

    /// The week that holds `date`. Empty when the calendar can't tell.
    [[nodiscard]] std::optional<WeekOfYear> weekOfYear(Date date) const;
};

} // namespace vantle
