// The text form of preference values, the same in every store.
//
// Pure functions, any thread.
#pragma once

#include <QString>

#include <optional>

namespace vantle::preferencetext {

/// `true` or `false`; reads also `1`, `0` and upper case. Empty for anything else.
[[nodiscard]] std::optional<bool> boolean(const QString& text);
[[nodiscard]] QString fromBoolean(bool value);

/// Decimal. Empty for fractions and on overflow.
[[nodiscard]] std::optional<qint64> integer(const QString& text);
[[nodiscard]] QString fromInteger(qint64 value);

/// The shortest decimal that reads back equal, with a decimal point in every locale. Empty for NaN
/// and infinity.
[[nodiscard]] std::optional<double> number(const QString& text);
[[nodiscard]] QString fromNumber(double value);

} // namespace vantle::preferencetext
