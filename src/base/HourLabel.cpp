#include "base/HourLabel.h"

#include <unicode/datefmt.h>
#include <unicode/timezone.h>

#include <memory>

namespace vantle {

QString hourLabel(int hour, const QString& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createInstanceForSkeleton(
        u"j", icu::Locale::createFromName(locale.toLatin1().constData()), status));
    if (U_FAILURE(status)) return QString::number(hour);
    // Day 0 in UTC: every hour exists there once.
    format->setTimeZone(*icu::TimeZone::getGMT());
    icu::UnicodeString text;
    format->format(hour * 3600.0 * 1000.0, text);
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

} // namespace vantle
