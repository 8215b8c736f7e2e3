// The rule that tells whether last week's review is due.
//
// Pure functions except for the preferences, which hold the weeks already seen. Main thread.
#pragma once

#include "base/Calendar.h"
#include "tracking/Session.h"

#include <optional>
#include <vector>

namespace vantle {

class Preferences;

namespace weeklyreview {

struct WeekInterval {
    Date start; ///< inclusive
    Date end;   ///< exclusive
};

/// The calendar's week before the one that holds `now`. Empty when the calendar can't tell.
[[nodiscard]] std::optional<WeekInterval> lastWeekInterval(Date now, const Calendar& calendar);

/// The week number that marks the review of the week of `date` as seen.
[[nodiscard]] Calendar::WeekOfYear weekOf(Date date, const Calendar& calendar);

/// Last week, unless its review was seen; empty means that the log need not be read.
[[nodiscard]] std::optional<WeekInterval> unseenLastWeek(Date now, const Calendar& calendar,
                                                         const Preferences& preferences);

/// Whether at least two sessions ended in the week.
[[nodiscard]] bool holdsAReview(const std::vector<Session>& sessions, const WeekInterval& week);

} // namespace weeklyreview
} // namespace vantle
