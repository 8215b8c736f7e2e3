#include "review/RhythmShape.h"

#include "base/LocalTime.h"

#include <algorithm>

namespace vantle {

RhythmDays RhythmDays::of(const WrappedStats& stats, const WrappedSettings& settings) {
    RhythmDays days{settings.now, settings.calendar, {}};
    days.worked.reserve(stats.workedDays.size());
    for (const auto& [day, hours, hexRGB] : stats.workedDays)
        days.worked.push_back({day, hours, hexRGB});
    return days;
}

namespace rhythmshape {

namespace {

using localtime::Day;

/// Returns the first day of the next month. 31 days later is always in the next month: none is
/// longer than 31 days or that short.
Day nextMonth(LocalTime& local, Day first) { return local.firstOfMonth(first + 31); }

/// Returns the days from `first` up to, excluding, `end`; empty when the calendar has no weeks.
std::vector<GridDay> stretch(Day first, Day end, const RhythmDays& days) {
    LocalTime local(days.calendar);
    if (!local.knowsZone()) return {};
    const Day today = local.at(days.now).day;
    std::vector<GridDay> list;
    for (Day day = first; day < end; ++day) {
        GridDay grid{local.startOfDay(day), 0, day > today, {}, day == today};
        const auto held =
            std::ranges::lower_bound(days.worked, grid.date, {}, &RhythmDays::Worked::day);
        if (held != days.worked.end() && held->day == grid.date) {
            grid.hours = held->hours;
            grid.color = held->color;
        }
        list.push_back(grid);
    }
    return list;
}

} // namespace

std::vector<GridDay> weekDays(WrappedPeriod period, const RhythmDays& days) {
    const auto interval = period == WrappedPeriod::Today ? WrappedPeriod::Week : period;
    const auto start = wrappedperiod::start(interval, days.now, days.calendar);
    if (!start) return {};
    LocalTime local(days.calendar);
    const Day first = local.at(*start).day;
    return stretch(first, first + 7, days);
}

std::vector<Week> inWeeks(const std::vector<GridDay>& days, const Calendar& calendar) {
    if (days.empty()) return {};
    LocalTime local(calendar);
    const Day first = local.at(days.front().date).day;
    // Only an unknown zone has no weeks; there the first day begins one.
    auto place = static_cast<std::size_t>(first - local.firstOfWeek(first).value_or(first));
    std::vector<Week> weeks((place + days.size() + 6) / 7);
    for (const GridDay& day : days) {
        weeks[place / 7][place % 7] = day;
        ++place;
    }
    return weeks;
}

std::vector<Week> monthWeeks(const RhythmDays& days) {
    LocalTime local(days.calendar);
    const Day first = local.firstOfMonth(local.at(days.now).day);
    return inWeeks(stretch(first, nextMonth(local, first), days), days.calendar);
}

std::vector<Week> yearWeeks(int year, const RhythmDays& days) {
    LocalTime local(days.calendar);
    return inWeeks(stretch(local.firstOfYear(year), local.firstOfYear(year + 1), days),
                   days.calendar);
}

std::vector<std::vector<GridDay>> yearMonths(int year, const RhythmDays& days) {
    LocalTime local(days.calendar);
    std::vector<std::vector<GridDay>> months;
    const Day end = local.firstOfYear(year + 1);
    for (Day first = local.firstOfYear(year); first < end;) {
        const Day next = nextMonth(local, first);
        months.push_back(stretch(first, next, days));
        first = next;
    }
    return months;
}

int yearOf(Date date, const Calendar& calendar) {
    LocalTime local(calendar);
    return local.yearOf(local.at(date).day);
}

} // namespace rhythmshape
} // namespace vantle
