#include "surfaces/kit/tokens/ColorMath.h"

#include "surfaces/kit/tokens/Look.h"

#include <algorithm>
#include <cmath>

namespace vantle::colormath {
namespace {

/// Converts an sRGB channel to linear light, 0 to 1.
double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

float towardsWhite(float channel, double amount) {
    return static_cast<float>(channel + (1.0 - channel) * amount);
}

} // namespace

QColor fromHex(std::uint32_t hexRGB) { return QColor::fromRgb(0xFF000000U | hexRGB); }

QColor glassLightened(const QColor& color, double amount) {
    const double part = std::clamp(amount, 0.0, 1.0);
    return QColor::fromRgbF(towardsWhite(color.redF(), part), towardsWhite(color.greenF(), part),
                            towardsWhite(color.blueF(), part), color.alphaF());
}

QColor withAlpha(QColor color, double alpha) {
    color.setAlphaF(static_cast<float>(std::clamp(alpha, 0.0, 1.0)));
    return color;
}

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor inkOn(const QColor& fill) {
    const QColor ink = look::kDark.ink.color();
    const QColor white(Qt::white);
    return contrast(fill, ink) >= contrast(fill, white) ? ink : white;
}

} // namespace vantle::colormath
