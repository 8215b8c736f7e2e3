#include "review/stats/PersonaWindow.h"

#include <algorithm>

namespace vantle {

namespace {

constexpr std::size_t kEnoughSessions = 5;

/// Returns the calendar week of `date`; empty when ICU cannot compute it.
Interval weekOf(Date date, LocalTime& local) {
    const auto first = local.firstOfWeek(local.at(date).day);
    if (!first) return Interval::none();
    return {local.startOfDay(*first), local.startOfDay(*first + 7)};
}

} // namespace

void PersonaWindow::addWeeks(LogWalk::Plan& plan, WrappedPeriod period, const Calendar& calendar) {
    if (wrappedperiod::isAWeek(period)) return;
    LocalTime local(calendar);
    plan.thisWeek = weekOf(plan.now, local);
    if (const auto weekAgo = calendar.addingWeeks(plan.now, -1))
        plan.earlierWeek = weekOf(*weekAgo, local);
}

PersonaWindow PersonaWindow::choose(WrappedPeriod period, const LogWalk& walk) {
    if (walk.thisWeek.size() >= kEnoughSessions)
        return {walk.thisWeek, wrappedperiod::inSentence(WrappedPeriod::Week)};
    if (walk.earlierWeek.size() >= kEnoughSessions)
        return {walk.earlierWeek, wrappedperiod::inSentence(WrappedPeriod::LastWeek)};
    return {walk.period, wrappedperiod::inSentence(period)};
}

bool PersonaWindow::isEnough(LocalTime& local) const {
    if (sessions.size() < kEnoughSessions) return false;
    const auto dayOf = [&](const Session* session) { return local.at(session->endedAt).day; };
    const auto firstDay = dayOf(sessions.front());
    return std::ranges::any_of(sessions,
                               [&](const Session* session) { return dayOf(session) != firstDay; });
}

} // namespace vantle
