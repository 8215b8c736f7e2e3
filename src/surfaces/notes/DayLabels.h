// The day headings: "Today", "Yesterday", "Wed, Nov 19".
#pragma once

#include "base/DateText.h"
#include "base/LocalTime.h"

namespace vantle {

/// Headings relative to a moment. Construction makes two DateText (100 microseconds), a heading is
/// cheap: keep it where many are written. One thread at a time.
class DayLabels {
public:
    DayLabels(Date now, const Calendar& calendar);

    /// Includes the year if it differs from the current one.
    [[nodiscard]] QString operator()(Date day);

private:
    LocalTime m_wall;
    localtime::Day m_today;
    DateText m_thisYear;
    DateText m_otherYears;
};

} // namespace vantle
