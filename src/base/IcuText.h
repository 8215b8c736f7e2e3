// Qt's strings as ICU's and back. For the files of this folder: ICU shows nowhere else.
#pragma once

#include <QString>

#include <unicode/locid.h>
#include <unicode/unistr.h>

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

} // namespace vantle::icutext
