#include "base/HourLabel.h"

#include "base/IcuText.h"

#include <unicode/datefmt.h>
#include <unicode/timezone.h>

#include <memory>

namespace vantle {

QString hourLabel(int hour, const QString& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createInstanceForSkeleton(u"j", icutext::localeNamed(locale), status));
    // Day 0 in UTC: every hour exists there once.
    format->setTimeZone(*icu::TimeZone::getGMT());
    icu::UnicodeString text;
    format->format(hour * 3600.0 * 1000.0, text);
    return icutext::fromIcu(text);
}

} // namespace vantle
