// The stretches of time that a review can look back over, and how they are named.
//
// Plain values and pure functions, any thread.
#pragma once

#include "base/Calendar.h"

#include <QString>

#include <array>
#include <optional>

namespace vantle {

enum class WrappedPeriod { Today, Week, Month, AllTime, LastWeek };

namespace wrappedperiod {

inline constexpr std::array all = {WrappedPeriod::Today, WrappedPeriod::Week, WrappedPeriod::Month,
                                   WrappedPeriod::AllTime, WrappedPeriod::LastWeek};

/// What the picker offers. Last week is reached by opening the review on it only.
inline constexpr std::array pickerCases = {WrappedPeriod::Today, WrappedPeriod::Week,
                                           WrappedPeriod::Month, WrappedPeriod::AllTime};

[[nodiscard]] QString id(WrappedPeriod period);           ///< "lastWeek"
[[nodiscard]] QString label(WrappedPeriod period);        ///< "Last week"
[[nodiscard]] QString pickerLabel(WrappedPeriod period);  ///< "Week" for this week
[[nodiscard]] QString inSentence(WrappedPeriod period);   ///< "last week"
[[nodiscard]] QString fileSuffix(WrappedPeriod period);   ///< "last-week"
[[nodiscard]] QString summaryTitle(WrappedPeriod period); ///< "YOUR WEEK, IN FULL"

/// The period with that id.
[[nodiscard]] std::optional<WrappedPeriod> fromId(const QString& id);

/// Whether the period is a week of the calendar.
[[nodiscard]] constexpr bool isAWeek(WrappedPeriod period) {
    return period == WrappedPeriod::Week || period == WrappedPeriod::LastWeek;
}

/// The first moment of the period; none for all time.
[[nodiscard]] std::optional<Date> start(WrappedPeriod period, Date now, const Calendar& calendar);

/// The moment at which the period is over; none for those that run to the present.
[[nodiscard]] std::optional<Date> end(WrappedPeriod period, Date now, const Calendar& calendar);

/// The calendar days of the period that have begun, today included; none for all time.
[[nodiscard]] std::optional<int> daysElapsed(WrappedPeriod period, Date now,
                                             const Calendar& calendar);

} // namespace wrappedperiod
} // namespace vantle
