#include "base/LocalTime.h"

#include "base/IcuText.h"

#include <unicode/basictz.h>
#include <unicode/tztrans.h>

#include <algorithm>
#include <chrono>
#include <limits>

namespace vantle {

namespace localtime {

namespace {

std::chrono::year_month_day civil(Day day) { return std::chrono::sys_days(std::chrono::days(day)); }

} // namespace

int yearOf(Day day) { return static_cast<int>(civil(day).year()); }

Day firstOfMonth(Day day) {
    const auto date = civil(day);
    return std::chrono::sys_days(date.year() / date.month() / 1).time_since_epoch().count();
}

} // namespace localtime

struct LocalTime::Zone {
    std::unique_ptr<const icu::BasicTimeZone> rules;
};

LocalTime::LocalTime(const Calendar& calendar) : m_firstWeekday(calendar.firstWeekday) {
    std::unique_ptr<const icu::TimeZone> zone(
        icu::TimeZone::createTimeZone(icutext::toIcu(calendar.timeZone)));
    if (*zone == icu::TimeZone::getUnknown()) return;
    // Each zone that ICU makes from an id can tell its changes.
    if (const auto* rules = dynamic_cast<const icu::BasicTimeZone*>(zone.get())) {
        static_cast<void>(zone.release());
        m_zone.reset(new Zone{std::unique_ptr<const icu::BasicTimeZone>(rules)});
    }
}

LocalTime::~LocalTime() = default;

Date LocalTime::startOfDay(localtime::Day day) {
    const std::int64_t midnight = day * localtime::kSecondsPerDay;
    // No zone is a whole day away from UTC, so this lies before the day begins.
    Stretch stretch = stretchAt(midnight - localtime::kSecondsPerDay);
    while (midnight - stretch.offset >= stretch.until)
        stretch = stretchAt(stretch.until);
    const std::int64_t start = std::max(midnight - stretch.offset, stretch.from);
    return dateFromEpoch(static_cast<double>(start));
}

std::optional<localtime::Day> LocalTime::firstOfWeek(localtime::Day day) const {
    if (!knowsZone()) return std::nullopt;
    constexpr int kWeekdayOfDay0 = 5; // a Thursday, where Sunday is 1
    const std::int64_t since = (day + kWeekdayOfDay0 - m_firstWeekday) % 7;
    return day - (since + 7) % 7;
}

LocalTime::Stretch LocalTime::stretchAt(std::int64_t seconds) {
    const auto after = std::ranges::upper_bound(m_known, seconds, {}, &Stretch::from);
    if (after != m_known.begin() && seconds < std::prev(after)->until) return *std::prev(after);
    return *m_known.insert(after, askedStretch(seconds));
}

LocalTime::Stretch LocalTime::askedStretch(std::int64_t seconds) const {
    Stretch stretch{std::numeric_limits<std::int64_t>::min(),
                    std::numeric_limits<std::int64_t>::max(), 0};
    if (!knowsZone()) return stretch;
    const icu::BasicTimeZone& zone = *m_zone->rules;
    const double ms = static_cast<double>(seconds) * 1000.0;
    icu::TimeZoneTransition change;
    const auto changeSeconds = [&] { return static_cast<std::int64_t>(change.getTime() / 1000.0); };
    if (zone.getPreviousTransition(ms, true, change)) stretch.from = changeSeconds();
    if (zone.getNextTransition(ms, false, change)) stretch.until = changeSeconds();
    UErrorCode status = U_ZERO_ERROR;
    int32_t raw = 0;
    int32_t saving = 0;
    zone.getOffset(ms, false, raw, saving, status);
    if (U_SUCCESS(status)) stretch.offset = (raw + saving) / 1000;
    return stretch;
}

} // namespace vantle
