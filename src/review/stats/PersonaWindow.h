// The sessions that a persona is judged by.
//
// Pure functions, any thread.
#pragma once

#include "base/LocalTime.h"
#include "review/stats/LogWalk.h"
#include "review/stats/WrappedPeriod.h"

#include <QString>

namespace vantle {

/// A week is judged by itself. Other periods are judged by this week if it has enough sessions,
/// else by last week, else by themselves: a current pattern says more than one of years, and one
/// day has none.
struct PersonaWindow {
    SessionRefs sessions;
    QString scope; ///< as text: "this week"

    /// Adds the weeks that the window of `period` needs to the plan.
    static void addWeeks(LogWalk::Plan& plan, WrappedPeriod period, const Calendar& calendar);

    /// Chooses the window of `period` from the lists of the walk.
    [[nodiscard]] static PersonaWindow choose(WrappedPeriod period, const LogWalk& walk);

    /// Whether a pattern is reliable: at least five sessions that ended on at least two days.
    [[nodiscard]] bool isEnough(LocalTime& local) const;
};

} // namespace vantle
