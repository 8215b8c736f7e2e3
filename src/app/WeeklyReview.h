// Whether the review of the past week waits for the person.
//
// Pure functions but for the preferences that remember which weeks were seen. Main thread.
#pragma once

#include "base/Calendar.h"
#include "tracking/Session.h"

#include <optional>
#include <vector>

namespace vantle {

class Preferences;

namespace weeklyreview {

struct WeekInterval {
    Date start; ///< belongs to the week
    Date end;   ///< does not
};

/// The calendar's week before the one that holds `now`. Empty when the calendar can't tell.
[[nodiscard]] std::optional<WeekInterval> lastWeekInterval(Date now, const Calendar& calendar);

/// The week under which the review of the one that holds the date is kept as seen.
[[nodiscard]] Calendar::WeekOfYear weekOf(Date date, const Calendar& calendar);

/// Last week, if its review was not looked at yet. Empty: then the log need not be asked.
[[nodiscard]] std::optional<WeekInterval> unseenLastWeek(Date now, const Calendar& calendar,
                                                         const Preferences& preferences);

/// Whether the week holds at least two ends of sessions.
[[nodiscard]] bool holdsAReview(const std::vector<Session>& sessions, const WeekInterval& week);

} // namespace weeklyreview
} // namespace vantle
