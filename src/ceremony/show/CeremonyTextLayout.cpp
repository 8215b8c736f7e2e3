#include "ceremony/show/CeremonyTextLayout.h"

#include <algorithm>
#include <cmath>

namespace vantle::ceremonytext {

double titleFontSize(double screenWidth) {
    constexpr double kLargest = 74;
    const double wanted = 0.058 * screenWidth;
    if (wanted >= 78) return kLargest;
    return std::round(std::round(std::max(wanted, 36.0)) * 0.95);
}

std::optional<Layout> titleLayout(double fontSize, const LineMetrics& line) {
    constexpr double kLeastSide = 8;
    const double lineHeight = line.ascent + line.descent;
    Layout layout;
    layout.width = 2 * std::round(0.55 * fontSize) + std::ceil(line.width);
    layout.height = 2 * std::round(0.34 * fontSize) + std::ceil(lineHeight);
    if (layout.width <= kLeastSide || layout.height <= kLeastSide) return std::nullopt;
    layout.textX = (layout.width - line.width) / 2;
    layout.textY = line.descent + (layout.height - lineHeight) / 2;
    return layout;
}

std::optional<Layout> captionLayout(const LineMetrics& line) {
    constexpr double kMargin = 2;
    Layout layout;
    layout.width = std::ceil(line.width) + 2 * kMargin;
    layout.height = std::ceil(line.ascent + line.descent) + 2 * kMargin;
    if (layout.width <= 2 * kMargin || layout.height <= 2 * kMargin) return std::nullopt;
    layout.textX = kMargin;
    layout.textY = line.descent + kMargin;
    return layout;
}

} // namespace vantle::ceremonytext
