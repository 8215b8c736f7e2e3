// The label of an hour: "9 AM", "09 Uhr", "9時".
//
// Pure function, any thread.
#pragma once

#include <QString>

namespace vantle {

/// Formats an hour, 0 to 23, in the 12 or 24 hour clock of the locale (an ICU id). Returns the
/// plain number when ICU cannot format it.
[[nodiscard]] QString hourLabel(int hour, const QString& locale);

} // namespace vantle
