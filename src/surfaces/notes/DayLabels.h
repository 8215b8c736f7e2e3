// The headings of days: "Today", "Yesterday", "Wed, Nov 19".
#pragma once

#include "base/DateText.h"
#include "base/LocalTime.h"

namespace vantle {

/// Headings as of a moment. Making one is dear (two DateText), a heading is cheap: keep it where
/// many are written. One thread at a time.
class DayLabels {
public:
    DayLabels(Date now, const Calendar& calendar);

    /// With the year where it is another one than now's.
    [[nodiscard]] QString operator()(Date day);

private:
    LocalTime m_wall;
    localtime::Day m_today;
    DateText m_thisYear;
    DateText m_otherYears;
};

} // namespace vantle
