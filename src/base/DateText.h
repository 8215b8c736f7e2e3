// Dates and times as people read them.
#pragma once

#include "base/Calendar.h"
#include "base/Date.h"

#include <QString>

#include <memory>

namespace vantle {

/// Writes moments in the time zone and the language of a calendar. Making one is dear (some
/// 50 microseconds), a text is cheap: keep it where many are written. One thread at a time.
class DateText {
public:
    /// Always in this order and form, whatever the locale; only names of days and months are in its
    /// language. The pattern is ICU's, as in "EEE, MMM d".
    [[nodiscard]] static DateText fixed(const QString& pattern, const Calendar& calendar);

    /// Hours and minutes as the locale writes them: "2:05 PM", "14:05".
    [[nodiscard]] static DateText time(const Calendar& calendar);

    ~DateText();
    DateText(DateText&&) noexcept;
    DateText& operator=(DateText&&) noexcept;

    /// Empty where ICU can't write it.
    [[nodiscard]] QString operator()(Date date) const;

private:
    struct Format;
    explicit DateText(std::unique_ptr<Format> format);

    std::unique_ptr<Format> m_format;
};

} // namespace vantle
