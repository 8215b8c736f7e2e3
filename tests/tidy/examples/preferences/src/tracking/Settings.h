// Every preference of the example.
#pragma once

inline constexpr Preference<bool> autoMode{"auto.enabled", true};
inline constexpr Preference<double> goal{
    "goal.hours", 2.0, {.least = PreferenceLimits<double>::aboveZero, .most = 24.0}};
inline constexpr Preference<double> idle{"idle.seconds", 180.0, {.least = 10.0}};
inline constexpr Preference<QString> name{"name"};
inline constexpr Preference<Style> style{"style", Style::HoursMinutes};
inline constexpr WeekFlag seen{"seen"};
inline constexpr Preference<bool> undescribed{"undescribed", false};
inline constexpr Preference<bool> strange(kKey, false);
