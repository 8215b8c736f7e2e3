// A week beside the weeks before it. Pure functions, any thread.
#pragma once

#include "base/Calendar.h"
#include "tracking/Session.h"

#include <optional>
#include <vector>

namespace vantle {

/// What is said of a week that begins at `weekStart`, from the records that count.
struct EarlierWeeks {
    /// Hours of the week before; none when there were none.
    std::optional<double> lastWeekHours;

    /// The hours of each week before that had a second of work, in no order.
    std::vector<double> hours;

    EarlierWeeks(const std::vector<Session>& sessions, Date now, Date weekStart,
                 const Calendar& calendar);

    /// 1 when no week before had more hours, 2 or 3 when one or two had. None beyond that, for a
    /// week without work, or with less than two weeks to compare it with.
    [[nodiscard]] std::optional<int> rankOf(double totalHours) const;
};

} // namespace vantle
