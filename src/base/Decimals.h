// Numbers with decimals and percentages as text.
#pragma once

#include <QString>

namespace vantle {

/// Formats a finite value like printf's "%.{decimals}f", with a decimal point in every locale:
/// exact binary ties round to the even digit, where Qt's functions round up. Any thread.
[[nodiscard]] QString fixedDecimals(double value, int decimals);

/// The same for a text of the program: with the decimal mark of the language that it speaks.
[[nodiscard]] QString shownDecimals(double value, int decimals);

/// A part of 100 as a text of the program: "40%".
[[nodiscard]] QString shownPercent(double percent);

} // namespace vantle
