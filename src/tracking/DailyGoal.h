// The hours that the person wants to reach each day.
#pragma once

#include "tracking/DurationStyle.h"

#include <QString>

namespace vantle {

class Preferences;

/// Main thread.
namespace dailygoal {

inline constexpr const char* hoursKey = "goal.dailyHours";
inline constexpr double defaultHours = 2.0;
inline constexpr double maxHours = 24.0;

/// The stored goal if it is above 0, at most 24; else 2.
[[nodiscard]] double hours(const Preferences& preferences);

/// Stores the goal as it is given; only reading limits it.
void setHours(double hours, Preferences& preferences);

[[nodiscard]] QString label(double hours, DurationStyle style);

} // namespace dailygoal
} // namespace vantle
