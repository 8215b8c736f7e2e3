#include "app/WeeklyReview.h"

#include "tracking/Settings.h"

#include <algorithm>

namespace vantle::weeklyreview {

namespace {

/// A review needs this many sessions.
constexpr std::ptrdiff_t kMinSessions = 2;

} // namespace

std::optional<WeekInterval> lastWeekInterval(Date now, const Calendar& calendar) {
    const auto thisWeek = calendar.startOfWeek(now);
    const auto lastWeek = thisWeek ? calendar.addingWeeks(*thisWeek, -1) : std::nullopt;
    if (!lastWeek) return std::nullopt;
    return WeekInterval{*lastWeek, *thisWeek};
}

Calendar::WeekOfYear weekOf(Date date, const Calendar& calendar) {
    return calendar.weekOfYear(date).value_or(Calendar::WeekOfYear{});
}

std::optional<WeekInterval> unseenLastWeek(Date now, const Calendar& calendar,
                                           const Preferences& preferences) {
    const auto week = lastWeekInterval(now, calendar);
    if (week && settings::reviewSeen.read(preferences, weekOf(week->start, calendar)))
        return std::nullopt;
    return week;
}

bool holdsAReview(const std::vector<Session>& sessions, const WeekInterval& week) {
    return std::ranges::count_if(sessions, [&](const Session& session) {
               return session.endedAt >= week.start && session.endedAt < week.end;
           }) >= kMinSessions;
}

} // namespace vantle::weeklyreview
