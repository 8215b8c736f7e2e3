// The text form of preference values, the same for every store, so that a value written by one
// reads alike in another. Pure functions, any thread.
#pragma once

#include <QString>

#include <optional>

namespace vantle::preferencetext {

/// `true` or `false`; on reading also `1` and `0`, and upper-case letters. Empty for all else.
[[nodiscard]] std::optional<bool> boolean(const QString& text);
[[nodiscard]] QString fromBoolean(bool value);

/// Decimal. Empty for fractions and for what does not fit.
[[nodiscard]] std::optional<qint64> integer(const QString& text);
[[nodiscard]] QString fromInteger(qint64 value);

/// The shortest decimal form that reads back as the same number, with a point in every locale.
/// Empty for what is no number, infinity included.
[[nodiscard]] std::optional<double> number(const QString& text);
[[nodiscard]] QString fromNumber(double value);

} // namespace vantle::preferencetext
