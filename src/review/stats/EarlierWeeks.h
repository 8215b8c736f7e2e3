// The comparison of a week with the weeks before it.
//
// Pure functions, any thread.
#pragma once

#include "base/Calendar.h"
#include "tracking/Session.h"

#include <optional>
#include <vector>

namespace vantle {

/// The hours before a week that begins at `weekStart`, from records that count.
struct EarlierWeeks {
    /// Hours of the previous week; empty when there were none.
    std::optional<double> lastWeekHours;

    /// The hours of each earlier week with work, unordered.
    std::vector<double> hours;

    EarlierWeeks(const std::vector<Session>& sessions, Date now, Date weekStart,
                 const Calendar& calendar);

    /// Returns the week's rank by hours if it is 1, 2 or 3. Empty for a lower rank, a week without
    /// work, or fewer than two weeks to compare with.
    [[nodiscard]] std::optional<int> rankOf(double totalHours) const;
};

} // namespace vantle
