// Numbers with decimals, as printf writes them.
#pragma once

#include <QString>

namespace vantle {

/// Formats a finite value like printf's "%.{decimals}f", with a decimal point in every locale:
/// exact binary ties round to the even digit, where Qt's functions round up. Any thread.
[[nodiscard]] QString fixedDecimals(double value, int decimals);

} // namespace vantle
