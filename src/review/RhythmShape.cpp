#include "review/RhythmShape.h"

#include "base/LocalTime.h"

#include <algorithm>
#include <chrono>

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

Day dayNumber(int year, unsigned month, unsigned day) {
    using namespace std::chrono;
    return sys_days(std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day))
        .time_since_epoch()
        .count();
}

/// The first day of the next month, for the first day of a month.
Day nextMonth(Day first) { return localtime::firstOfMonth(first + 31); }

/// The days from `first` to before `end`; none where the calendar knows no weeks.
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
    const auto firstOfWeek = local.firstOfWeek(first);
    if (!firstOfWeek) return {};
    auto place = static_cast<std::size_t>(first - *firstOfWeek);
    std::vector<Week> weeks((place + days.size() + 6) / 7);
    for (const GridDay& day : days) {
        weeks[place / 7][place % 7] = day;
        ++place;
    }
    return weeks;
}

std::vector<Week> monthWeeks(const RhythmDays& days) {
    LocalTime local(days.calendar);
    const Day first = localtime::firstOfMonth(local.at(days.now).day);
    return inWeeks(stretch(first, nextMonth(first), days), days.calendar);
}

std::vector<Week> yearWeeks(int year, const RhythmDays& days) {
    return inWeeks(stretch(dayNumber(year, 1, 1), dayNumber(year + 1, 1, 1), days), days.calendar);
}

std::vector<std::vector<GridDay>> yearMonths(int year, const RhythmDays& days) {
    std::vector<std::vector<GridDay>> months;
    for (unsigned month = 1; month <= 12; ++month) {
        const Day first = dayNumber(year, month, 1);
        months.push_back(stretch(first, nextMonth(first), days));
    }
    return months;
}

int yearOf(Date date, const Calendar& calendar) {
    return localtime::yearOf(LocalTime(calendar).at(date).day);
}

} // namespace rhythmshape
} // namespace vantle
