#include "base/LocalTime.h"

#include "base/IcuText.h"

#include <unicode/basictz.h>
#include <unicode/calendar.h>
#include <unicode/tztrans.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <string_view>

namespace vantle {

using localtime::Day;

namespace {

std::chrono::year_month_day civil(Day day) { return std::chrono::sys_days(std::chrono::days(day)); }

Day numberOf(std::chrono::sys_days day) { return day.time_since_epoch().count(); }

} // namespace

/// How the user's calendar counts years and months.
struct LocalTime::Years {
    /// Null for the Gregorian calendar, which is computed without ICU. Only counts days, so its
    /// zone does not matter.
    std::unique_ptr<icu::Calendar> calendar;

    explicit Years(const QString& locale) {
        UErrorCode status = U_ZERO_ERROR;
        calendar.reset(icu::Calendar::createInstance(*icu::TimeZone::getGMT(),
                                                     icutext::calendarLocaleNamed(locale), status));
        if (calendar->getType() == std::string_view("gregorian")) calendar.reset();
    }

    /// Returns a field of the day. ICU's calendars reach further than days do here.
    [[nodiscard]] int field(UCalendarDateFields which, Day day) const {
        UErrorCode status = U_ZERO_ERROR;
        calendar->setTime(static_cast<double>(day * localtime::kSecondsPerDay) * 1000.0, status);
        return calendar->get(which, status);
    }

    [[nodiscard]] Day firstOfYear(int year) const {
        UErrorCode status = U_ZERO_ERROR;
        calendar->clear();
        calendar->set(UCAL_YEAR, year);
        calendar->set(UCAL_MONTH, 0);
        calendar->set(UCAL_DATE, 1);
        const double ms = calendar->getTime(status);
        return static_cast<Day>(std::floor(ms / 1000.0 / localtime::kSecondsPerDay));
    }
};

struct LocalTime::Zone {
    std::unique_ptr<const icu::BasicTimeZone> rules;
};

LocalTime::LocalTime(const Calendar& calendar)
    : m_locale(calendar.locale)
    , m_firstWeekday(calendar.firstWeekday) {
    std::unique_ptr<const icu::TimeZone> zone(
        icu::TimeZone::createTimeZone(icutext::toIcu(calendar.timeZone)));
    if (*zone == icu::TimeZone::getUnknown()) return;
    // ICU's zones made from an id all have this base class.
    const auto* const rules = static_cast<const icu::BasicTimeZone*>(zone.release());
    m_zone.reset(new Zone{std::unique_ptr<const icu::BasicTimeZone>(rules)});
}

LocalTime::~LocalTime() = default;

Date LocalTime::startOfDay(localtime::Day day) {
    const std::int64_t midnight = day * localtime::kSecondsPerDay;
    // No offset reaches a whole day, so this moment lies before the day begins.
    Stretch stretch = stretchAt(midnight - localtime::kSecondsPerDay);
    while (midnight - stretch.offset >= stretch.until)
        stretch = stretchAt(stretch.until);
    const std::int64_t start = std::max(midnight - stretch.offset, stretch.from);
    return dateFromEpoch(static_cast<double>(start));
}

const LocalTime::Years& LocalTime::years() {
    if (!m_years) m_years = std::make_unique<Years>(m_locale);
    return *m_years;
}

int LocalTime::yearOf(Day day) {
    if (!years().calendar) return static_cast<int>(civil(day).year());
    // Callers walk day by day, so ICU is called once per year.
    if (day < m_yearBegin || day >= m_yearEnd) {
        m_year = years().field(UCAL_YEAR, day);
        m_yearBegin = years().firstOfYear(m_year);
        m_yearEnd = years().firstOfYear(m_year + 1);
    }
    return m_year;
}

Day LocalTime::firstOfMonth(Day day) {
    if (years().calendar) return day - years().field(UCAL_DATE, day) + 1;
    const auto date = civil(day);
    return numberOf(date.year() / date.month() / 1);
}

Day LocalTime::firstOfYear(int year) {
    if (years().calendar) return years().firstOfYear(year);
    return numberOf(std::chrono::year(year) / 1 / 1);
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
    UErrorCode ignored = U_ZERO_ERROR; // on failure both offsets stay 0
    int32_t raw = 0;
    int32_t saving = 0;
    zone.getOffset(ms, false, raw, saving, ignored);
    stretch.offset = (raw + saving) / 1000;
    return stretch;
}

} // namespace vantle
