// The periods of a review and their names.
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

/// The periods of the picker. Last week is shown only when the review is opened on it.
inline constexpr std::array pickerCases = {WrappedPeriod::Today, WrappedPeriod::Week,
                                           WrappedPeriod::Month, WrappedPeriod::AllTime};

[[nodiscard]] QString id(WrappedPeriod period);           ///< "lastWeek"
[[nodiscard]] QString label(WrappedPeriod period);        ///< "Last week"
[[nodiscard]] QString pickerLabel(WrappedPeriod period);  ///< "Week" for this week
[[nodiscard]] QString inSentence(WrappedPeriod period);   ///< "last week"
[[nodiscard]] QString fileSuffix(WrappedPeriod period);   ///< "last-week"
[[nodiscard]] QString summaryTitle(WrappedPeriod period); ///< "YOUR WEEK, IN FULL"

/// Returns the period with that id; empty for an unknown one.
[[nodiscard]] std::optional<WrappedPeriod> fromId(const QString& id);

/// Whether the period is a calendar week.
[[nodiscard]] constexpr bool isAWeek(WrappedPeriod period) {
    return period == WrappedPeriod::Week || period == WrappedPeriod::LastWeek;
}

/// The first moment; empty for all time.
[[nodiscard]] std::optional<Date> start(WrappedPeriod period, Date now, const Calendar& calendar);

/// The end; empty for a period that runs to the present.
[[nodiscard]] std::optional<Date> end(WrappedPeriod period, Date now, const Calendar& calendar);

/// The days of the period so far, today included; empty for all time.
[[nodiscard]] std::optional<int> daysElapsed(WrappedPeriod period, Date now,
                                             const Calendar& calendar);

} // namespace wrappedperiod
} // namespace vantle
