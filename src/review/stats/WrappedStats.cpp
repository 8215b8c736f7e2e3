#include "review/stats/WrappedStats.h"

#include "base/Bidi.h"
#include "base/Words.h"
#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle {

std::optional<Skill> WrappedStats::topSkill() const {
    if (skillHours.empty()) return std::nullopt;
    return skillHours.front().skill;
}

QString WrappedStats::closingLine(DurationStyle durationStyle) const {
    const QString hours = dashformat::inlineHours(totalHours, durationStyle);
    if (const auto top = topSkill()) {
        const QString text = sessionCount == 1 ? Words::tr("%1 across one session, led by %2.")
                                               : Words::tr("%1 across %n sessions, led by %2.",
                                                           nullptr, sessionCount);
        return text.arg(hours, bidi::isolated(top->name));
    }
    return (sessionCount == 1 ? Words::tr("%1 across one session.")
                              : Words::tr("%1 across %n sessions.", nullptr, sessionCount))
        .arg(hours);
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
