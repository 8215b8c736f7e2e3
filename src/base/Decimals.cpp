#include "base/Decimals.h"

#include <array>
#include <charconv>

namespace vantle {

QString fixedDecimals(double value, int decimals) {
    std::array<char, 400> buffer{}; // the longest double has 309 digits before the point
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, decimals);
    return QString::fromLatin1(buffer.data(), end.ptr - buffer.data());
}

} // namespace vantle
