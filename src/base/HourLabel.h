// An hour of the day as the person's locale writes it: "9 AM", "09 Uhr", "9時". Pure, any thread.
#pragma once

#include <QString>

namespace vantle {

/// The hour alone, 0 to 23, in the clock of 12 or 24 hours that the locale (an ICU id) uses. The
/// plain number where ICU can't write it.
[[nodiscard]] QString hourLabel(int hour, const QString& locale);

} // namespace vantle
