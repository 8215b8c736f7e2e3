// Which sessions a persona is judged by. Pure functions, any thread.
#pragma once

#include "base/LocalTime.h"
#include "review/stats/LogWalk.h"
#include "review/stats/WrappedPeriod.h"

#include <QString>

namespace vantle {

/// A week is judged by itself. Other periods are judged by this week where it holds enough
/// sessions, else by the week before, else by themselves: a pattern of the present says more than
/// one of years, and a single day has none.
struct PersonaWindow {
    SessionRefs sessions;
    QString scope; ///< its words: "this week"

    /// Tells the walk which weeks to gather for the window of `period`.
    static void addWeeks(LogWalk::Plan& plan, WrappedPeriod period, const Calendar& calendar);

    /// The window of `period`, in the lists of the walk.
    [[nodiscard]] static PersonaWindow choose(WrappedPeriod period, const LogWalk& walk);

    /// Whether a pattern can be trusted: at least five sessions that ended on at least two days.
    [[nodiscard]] bool isEnough(LocalTime& local) const;
};

} // namespace vantle
