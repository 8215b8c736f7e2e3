// Conversions between Qt's and ICU's strings.
//
// For this folder only: no other code uses ICU. Any thread. What ICU makes for a locale is not
// checked for null: its data are part of its library, so it has something for every locale.
#pragma once

#include <QString>

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <memory>
#include <string>

namespace vantle::icutext {

[[nodiscard]] inline icu::UnicodeString toIcu(const QString& text) {
    return {text.utf16(), static_cast<int32_t>(text.size())};
}

[[nodiscard]] inline QString fromIcu(const icu::UnicodeString& text) {
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

/// Returns the locale of a name such as "de_DE"; ICU's root locale for an unknown name.
[[nodiscard]] inline icu::Locale localeNamed(const QString& name) {
    const auto locale = icu::Locale::createFromName(name.toLatin1().constData());
    return locale.isBogus() ? icu::Locale::getRoot() : locale; // ICU may crash on a bogus one
}

/// Returns the locale with its calendar for dates: the locale's own where that has its own years
/// and twelve months, else the Gregorian. Takes about 20 microseconds.
[[nodiscard]] inline icu::Locale calendarLocaleNamed(const QString& name) {
    icu::Locale locale = localeNamed(name);
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<const icu::Calendar> calendar(
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), locale, status));
    const std::string type = calendar->getType();
    if (type != "persian" && type != "buddhist" && type.rfind("islamic", 0) != 0) {
        // On failure ICU's default stays.
        locale.setKeywordValue("calendar", "gregorian", status);
    }
    return locale;
}

} // namespace vantle::icutext
