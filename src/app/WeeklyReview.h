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

/// The preference that says that the review of the week was opened: "wrapped.seen.2026-9".
[[nodiscard]] QString wrappedSeenKey(Date forWeekContaining, const Calendar& calendar);

/// Whether last week's review was opened, or there is no such week: then the log need not be asked.
[[nodiscard]] bool lastWeekIsDone(Date now, const Calendar& calendar,
                                  const Preferences& preferences);

/// Whether last week holds at least two ends of sessions and was not looked at yet.
[[nodiscard]] bool wrappedIsReady(const std::vector<Session>& sessions, Date now,
                                  const Calendar& calendar, const Preferences& preferences);

} // namespace weeklyreview
} // namespace vantle
