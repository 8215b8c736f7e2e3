// The four ways of writing a duration, and the person's choice among them.
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace vantle {

class NotificationCenter;
class Preferences;

enum class DurationStyle { Natural, HoursMinutes, Minutes, Clock };

namespace durationstyle {

inline constexpr const char* defaultsKey = "format.duration";
inline constexpr std::array all = {DurationStyle::Natural, DurationStyle::HoursMinutes,
                                   DurationStyle::Minutes, DurationStyle::Clock};

/// The value under which the style is stored, as in "hoursMinutes".
[[nodiscard]] QString rawValue(DurationStyle style);
[[nodiscard]] std::optional<DurationStyle> fromRawValue(const QString& rawValue);

/// As the settings name it, as in "Hours and minutes".
[[nodiscard]] QString label(DurationStyle style);

/// 3 h 30 min 12 s in this style, the example in the settings.
[[nodiscard]] QString sample(DurationStyle style);

/// The person's choice; absent or unknown means Natural. Main thread.
[[nodiscard]] DurationStyle current(const Preferences& preferences);

/// Stores the choice, and tells every history view before this returns. Main thread.
void adopt(DurationStyle style, Preferences& preferences, NotificationCenter& notifications);

} // namespace durationstyle
} // namespace vantle
