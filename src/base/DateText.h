// Dates and times as the user reads them.
#pragma once

#include "base/Calendar.h"
#include "base/Date.h"

#include <QString>

#include <memory>

namespace vantle {

/// Formats moments in the time zone and language of a calendar. Construction takes about 50
/// microseconds, a text much less: keep the object where many are written. One thread at a time.
class DateText {
public:
    /// A fixed order of fields in every locale; only the names of days and months are translated.
    /// The pattern is ICU's, as in "EEE, MMM d".
    [[nodiscard]] static DateText fixed(const QString& pattern, const Calendar& calendar);

    /// Hours and minutes in the locale's form: "2:05 PM", "14:05".
    [[nodiscard]] static DateText time(const Calendar& calendar);

    ~DateText();
    DateText(DateText&&) noexcept;
    DateText& operator=(DateText&&) noexcept;

    [[nodiscard]] QString operator()(Date date) const;

private:
    struct Format;
    explicit DateText(std::unique_ptr<Format> format);

    std::unique_ptr<Format> m_format;
};

} // namespace vantle
