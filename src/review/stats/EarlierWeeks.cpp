#include "review/stats/EarlierWeeks.h"

#include "base/LocalTime.h"
#include "tracking/TrackerCore.h"

#include <algorithm>
#include <map>

namespace vantle {

namespace {

constexpr std::size_t kLeastWeeks = 2;
constexpr std::ptrdiff_t kLastRank = 3;

double asHours(std::int64_t seconds) { return static_cast<double>(seconds) / 3600.0; }

/// Sums per week, keyed by the week's first day.
class WeekSums {
public:
    void add(localtime::Day firstDay, std::int64_t seconds) {
        // Records of one week are mostly adjacent.
        if (m_last == m_sums.end() || m_last->first != firstDay)
            m_last = m_sums.try_emplace(firstDay, 0).first;
        m_last->second += seconds;
    }

    [[nodiscard]] const std::map<localtime::Day, std::int64_t>& all() const { return m_sums; }

private:
    std::map<localtime::Day, std::int64_t> m_sums;
    std::map<localtime::Day, std::int64_t>::iterator m_last = m_sums.end();
};

} // namespace

EarlierWeeks::EarlierWeeks(const std::vector<Session>& sessions, Date now, Date weekStart,
                           const Calendar& calendar) {
    const auto lastWeekStart = calendar.addingWeeks(weekStart, -1);
    LocalTime local(calendar);
    std::int64_t lastWeekSeconds = 0;
    WeekSums sums;
    for (const Session& session : sessions) {
        if (session.endedAt >= weekStart || !TrackerCore::countsInTotals(session, now)) continue;
        if (lastWeekStart && session.endedAt >= *lastWeekStart)
            lastWeekSeconds += session.activeSeconds;
        if (const auto week = local.firstOfWeek(local.at(session.endedAt).day))
            sums.add(*week, session.activeSeconds);
    }
    if (lastWeekSeconds > 0) lastWeekHours = asHours(lastWeekSeconds);
    for (const auto& [week, seconds] : sums.all())
        if (seconds > 0) hours.push_back(asHours(seconds));
}

std::optional<int> EarlierWeeks::rankOf(double totalHours) const {
    if (totalHours <= 0 || hours.size() < kLeastWeeks) return std::nullopt;
    const auto better =
        std::ranges::count_if(hours, [&](double earlier) { return earlier > totalHours; });
    if (better >= kLastRank) return std::nullopt;
    return static_cast<int>(better) + 1;
}

} // namespace vantle
