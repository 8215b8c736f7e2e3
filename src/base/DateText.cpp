#include "base/DateText.h"

#include "base/IcuText.h"

#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

namespace vantle {

struct DateText::Format {
    icu::SimpleDateFormat icu;
};

namespace {

using icutext::calendarLocaleNamed;
using icutext::localeNamed;
using icutext::toIcu;

icu::SimpleDateFormat make(const icu::UnicodeString& pattern, const Calendar& calendar) {
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat format(pattern, calendarLocaleNamed(calendar.locale), status);
    format.adoptTimeZone(icu::TimeZone::createTimeZone(toIcu(calendar.timeZone)));
    return format;
}

} // namespace

DateText::DateText(std::unique_ptr<Format> format) : m_format(std::move(format)) {}
DateText::~DateText() = default;
DateText::DateText(DateText&&) noexcept = default;
DateText& DateText::operator=(DateText&&) noexcept = default;

DateText DateText::fixed(const QString& pattern, const Calendar& calendar) {
    return DateText(std::unique_ptr<Format>(new Format{make(toIcu(pattern), calendar)}));
}

DateText DateText::time(const Calendar& calendar) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> patterns(
        icu::DateTimePatternGenerator::createInstance(localeNamed(calendar.locale), status));
    const icu::UnicodeString pattern = patterns->getBestPattern(u"jmm", status);
    return DateText(std::unique_ptr<Format>(new Format{make(pattern, calendar)}));
}

QString DateText::operator()(Date date) const {
    icu::UnicodeString text;
    m_format->icu.format(epochSeconds(date) * 1000.0, text);
    return icutext::fromIcu(text);
}

} // namespace vantle
