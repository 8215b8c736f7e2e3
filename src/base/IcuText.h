// Qt's strings as ICU's and back. For the files of this folder: ICU shows nowhere else.
#pragma once

#include <QString>

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <memory>
#include <string>

namespace vantle::icutext {

/// A copy, as ICU's.
[[nodiscard]] inline icu::UnicodeString toIcu(const QString& text) {
    return {text.utf16(), static_cast<int32_t>(text.size())};
}

/// A copy, as Qt's.
[[nodiscard]] inline QString fromIcu(const icu::UnicodeString& text) {
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

/// The locale of a name such as "de_DE"; for a name that says nothing to ICU its root.
[[nodiscard]] inline icu::Locale localeNamed(const QString& name) {
    return icu::Locale::createFromName(name.toLatin1().constData());
}

/// The same with the calendar of dates: the locale's own, where its years go by a count of their
/// own and have twelve months, else the Gregorian. Some 20 microseconds.
[[nodiscard]] inline icu::Locale calendarLocaleNamed(const QString& name) {
    icu::Locale locale = localeNamed(name);
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<const icu::Calendar> calendar(
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), locale, status));
    const std::string type = U_SUCCESS(status) ? calendar->getType() : "";
    if (type != "persian" && type != "buddhist" && type.rfind("islamic", 0) != 0) {
        UErrorCode ignored = U_ZERO_ERROR; // then ICU's own default stays
        locale.setKeywordValue("calendar", "gregorian", ignored);
    }
    return locale;
}

} // namespace vantle::icutext
