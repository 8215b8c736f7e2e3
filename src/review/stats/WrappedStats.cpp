#include "review/stats/WrappedStats.h"

#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle {

std::optional<Skill> WrappedStats::topSkill() const {
    if (skillHours.empty()) return std::nullopt;
    return skillHours.front().skill;
}

QString WrappedStats::closingLine(DurationStyle durationStyle) const {
    QString line = dashformat::inlineHours(totalHours, durationStyle) + QLatin1String(" across ");
    line += sessionCount == 1 ? QStringLiteral("one session")
                              : QStringLiteral("%1 sessions").arg(sessionCount);
    if (const auto top = topSkill()) line += QLatin1String(", led by ") + top->name;
    return line + QLatin1Char('.');
}

namespace {

const WrappedStats::WorkedDay* find(const std::vector<WrappedStats::WorkedDay>& days, Date day) {
    const auto found = std::ranges::lower_bound(days, day, {}, &WrappedStats::WorkedDay::day);
    return found != days.end() && found->day == day ? &*found : nullptr;
}

} // namespace

double WrappedStats::dayHours(Date day) const {
    const WorkedDay* worked = find(workedDays, day);
    return worked ? worked->hours : 0.0;
}

std::optional<std::uint32_t> WrappedStats::dayColor(Date day) const {
    const WorkedDay* worked = find(workedDays, day);
    return worked ? std::optional(worked->hexRGB) : std::nullopt;
}

} // namespace vantle
