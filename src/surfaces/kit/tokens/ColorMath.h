// Colour functions in sRGB.
//
// Pure functions, any thread.
#pragma once

#include <QColor>

#include <cstdint>

namespace vantle::colormath {

/// The opaque colour 0xRRGGBB.
[[nodiscard]] QColor fromHex(std::uint32_t hexRGB);

/// Blends the colour with white by `amount`, 0 to 1; keeps its alpha.
[[nodiscard]] QColor glassLightened(const QColor& color, double amount);

/// Returns the colour with that alpha, 0 to 1.
[[nodiscard]] QColor withAlpha(QColor color, double alpha);

/// Returns the contrast ratio of two opaque colours, 1 to 21.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// Returns the text colour for a fill: dark ink or white, whichever contrasts more.
[[nodiscard]] QColor inkOn(const QColor& fill);

} // namespace vantle::colormath
