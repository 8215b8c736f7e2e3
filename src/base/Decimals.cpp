#include "base/Decimals.h"

#include "base/Words.h"

#include <array>
#include <charconv>

namespace vantle {

QString fixedDecimals(double value, int decimals) {
    std::array<char, 400> buffer{}; // the longest double has 309 digits before the point
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, decimals);
    return QString::fromLatin1(buffer.data(), end.ptr - buffer.data());
}

QString shownDecimals(double value, int decimals) {
    return fixedDecimals(value, decimals).replace(QLatin1Char('.'), Words::tr(".", "decimal mark"));
}

QString shownPercent(double percent) { return Words::tr("%1%").arg(fixedDecimals(percent, 0)); }

} // namespace vantle
