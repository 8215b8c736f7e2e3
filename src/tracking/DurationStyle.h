// The four ways to write a duration, and the user's choice.
#pragma once

#include "platform/Preference.h"

#include <QString>

#include <array>
#include <optional>

namespace vantle {

class NotificationCenter;

enum class DurationStyle { Natural, HoursMinutes, Minutes, Clock };

namespace durationstyle {

inline constexpr std::array all = {DurationStyle::Natural, DurationStyle::HoursMinutes,
                                   DurationStyle::Minutes, DurationStyle::Clock};

/// The stored value, as in "hoursMinutes".
[[nodiscard]] QString rawValue(DurationStyle style);
[[nodiscard]] std::optional<DurationStyle> fromRawValue(const QString& rawValue);

/// The label in the settings, as in "Hours and minutes".
[[nodiscard]] QString label(DurationStyle style);

/// The example in the settings: 3 h 30 min 12 s in this style.
[[nodiscard]] QString sample(DurationStyle style);

/// Stores the choice and notifies every history view before it returns. Main thread.
void adopt(DurationStyle style, Preferences& preferences, NotificationCenter& notifications);

} // namespace durationstyle

template <>
struct PreferenceForm<DurationStyle> {
    static std::optional<DurationStyle> read(const Preferences& store, const QString& key) {
        const std::optional<QString> text = store.string(key);
        return text ? durationstyle::fromRawValue(*text) : std::nullopt;
    }
    static void write(Preferences& store, const QString& key, DurationStyle value) {
        store.setString(key, durationstyle::rawValue(value));
    }
};

} // namespace vantle
