#include "app/WeeklyReview.h"

#include "platform/Preferences.h"

#include <algorithm>

namespace vantle::weeklyreview {

namespace {

/// Fewer sessions don't make a review.
constexpr std::ptrdiff_t kMinSessions = 2;

} // namespace

std::optional<WeekInterval> lastWeekInterval(Date now, const Calendar& calendar) {
    const auto thisWeek = calendar.startOfWeek(now);
    if (!thisWeek) return std::nullopt;
    const auto lastWeek = calendar.addingWeeks(*thisWeek, -1);
    if (!lastWeek) return std::nullopt;
    return WeekInterval{*lastWeek, *thisWeek};
}

QString wrappedSeenKey(Date forWeekContaining, const Calendar& calendar) {
    const auto week = calendar.weekOfYear(forWeekContaining).value_or(Calendar::WeekOfYear{});
    return QStringLiteral("wrapped.seen.%1-%2").arg(week.yearForWeekOfYear).arg(week.weekOfYear);
}

std::optional<WeekInterval> unseenLastWeek(Date now, const Calendar& calendar,
                                           const Preferences& preferences) {
    const auto week = lastWeekInterval(now, calendar);
    if (week && preferences.flag(wrappedSeenKey(week->start, calendar))) return std::nullopt;
    return week;
}

bool holdsAReview(const std::vector<Session>& sessions, const WeekInterval& week) {
    return std::ranges::count_if(sessions, [&](const Session& session) {
               return session.endedAt >= week.start && session.endedAt < week.end;
           }) >= kMinSessions;
}

} // namespace vantle::weeklyreview
