#include "base/Calendar.h"

#include "base/IcuText.h"

#include <QFileInfo>

#include <unicode/calendar.h>
#include <unicode/gregocal.h>
#include <unicode/timezone.h>

#include <cmath>
#include <memory>
#include <type_traits>

namespace vantle {

namespace {

using icutext::fromIcu;
using icutext::toIcu;

/// ICU's unit is the millisecond; rounding down keeps a date within its second.
double milliseconds(Date date) { return std::floor(epochSeconds(date) * 1000.0); }

Date fromMilliseconds(double ms) { return dateFromEpoch(ms / 1000.0); }

/// Returns what `question` asks ICU's calendar with these rules, set to `date`; empty in an unknown
/// zone and when ICU cannot compute it. Only the last status is checked: after an error ICU's calls
/// do nothing and return 0.
template <typename Question>
auto answered(const Calendar& rules, Date date, Question question)
    -> std::optional<std::invoke_result_t<Question, icu::Calendar&, UErrorCode&>> {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(toIcu(rules.timeZone)));
    if (*zone == icu::TimeZone::getUnknown()) return std::nullopt;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(
        zone.release(), icutext::calendarLocaleNamed(rules.locale), status));
    // Proleptic Gregorian throughout, as in files.
    if (auto* const gregorian = dynamic_cast<icu::GregorianCalendar*>(calendar.get()))
        gregorian->setGregorianChange(-1e18, status);
    calendar->setFirstDayOfWeek(static_cast<UCalendarDaysOfWeek>(rules.firstWeekday));
    calendar->setMinimalDaysInFirstWeek(static_cast<uint8_t>(rules.minimalDays));
    calendar->setTime(milliseconds(date), status);
    const auto answer = question(*calendar, status);
    if (U_FAILURE(status)) return std::nullopt;
    return answer;
}

bool isKnownZone(const QString& id) {
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(toIcu(id)));
    return *zone != icu::TimeZone::getUnknown();
}

/// Returns the zone whose file `path` leads to, as in `/usr/share/zoneinfo/Europe/Berlin`; empty
/// when there is none.
QString zoneOfFile(const QString& path) {
    const QString target = QFileInfo(path).canonicalFilePath();
    const QString folder = QStringLiteral("/zoneinfo/");
    const qsizetype at = target.indexOf(folder);
    return at < 0 ? QString() : target.sliced(at + folder.size());
}

/// Returns the zone of this machine. ICU takes TZ for a zone id, but TZ may also be a colon and the
/// path of a file, which some desktops set: `:/etc/localtime`.
QString systemZone() {
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::detectHostTimeZone());
    icu::UnicodeString id;
    const QString detected = fromIcu(zone->getID(id));
    if (isKnownZone(detected)) return detected;
    for (const QString& path : {detected, QStringLiteral("/etc/localtime")})
        if (const QString named = zoneOfFile(path); isKnownZone(named)) return named;
    return QStringLiteral("UTC");
}

/// Returns the locale for times (LC_TIME). ICU's default follows LC_MESSAGES, which many users set
/// to another country.
icu::Locale localeOfTimes() {
    for (const char* name : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (!value.isEmpty()) return icu::Locale::createCanonical(value.constData());
    }
    return icu::Locale::getDefault();
}

/// Returns the first moment of the day of `calendar`, and moves it there.
Date firstMomentOfDay(icu::Calendar& calendar, UErrorCode& status) {
    calendar.set(UCAL_HOUR_OF_DAY, 0);
    calendar.set(UCAL_MINUTE, 0);
    calendar.set(UCAL_SECOND, 0);
    calendar.set(UCAL_MILLISECOND, 0);
    // A midnight skipped by a clock change is the moment after the gap, a repeated midnight the
    // first one.
    calendar.setSkippedWallTimeOption(UCAL_WALLTIME_NEXT_VALID);
    calendar.setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
    return fromMilliseconds(calendar.getTime(status));
}

} // namespace

Calendar Calendar::current() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale locale = localeOfTimes();
    const std::unique_ptr<icu::Calendar> system(icu::Calendar::createInstance(locale, status));

    Calendar calendar;
    calendar.timeZone = systemZone();
    calendar.locale = QString::fromLatin1(locale.getName());
    calendar.firstWeekday = system->getFirstDayOfWeek();
    calendar.minimalDays = system->getMinimalDaysInFirstWeek();
    return calendar;
}

Date Calendar::startOfDay(Date date) const {
    return answered(*this, date, firstMomentOfDay).value_or(date);
}

std::optional<Date> Calendar::startOfWeek(Date date) const {
    return answered(*this, date, [this](icu::Calendar& calendar, UErrorCode& status) {
        const int weekday = calendar.get(UCAL_DAY_OF_WEEK, status);
        const int daysIntoWeek = (weekday - firstWeekday + 7) % 7;
        // Starts at noon, which exists every day: stepping back cannot land in a gap and change the
        // day.
        calendar.set(UCAL_HOUR_OF_DAY, 12);
        calendar.add(UCAL_DAY_OF_MONTH, -daysIntoWeek, status);
        return firstMomentOfDay(calendar, status);
    });
}

std::optional<Date> Calendar::addingWeeks(Date date, int weeks) const {
    return answered(*this, date, [weeks](icu::Calendar& calendar, UErrorCode& status) {
        calendar.add(UCAL_WEEK_OF_YEAR, weeks, status);
        return fromMilliseconds(calendar.getTime(status));
    });
}

std::optional<Calendar::WeekOfYear> Calendar::weekOfYear(Date date) const {
    return answered(*this, date, [](const icu::Calendar& calendar, UErrorCode& status) {
        return WeekOfYear{calendar.get(UCAL_YEAR_WOY, status),
                          calendar.get(UCAL_WEEK_OF_YEAR, status)};
    });
}

} // namespace vantle
