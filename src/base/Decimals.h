// Numbers with decimals, as printf writes them.
#pragma once

#include <QString>

namespace vantle {

/// printf's "%.{decimals}f" with a point in every locale, of a finite value: exact ties of the
/// binary value go to the even digit. (Qt's own formatting rounds them up.) Any thread.
[[nodiscard]] QString fixedDecimals(double value, int decimals);

} // namespace vantle
