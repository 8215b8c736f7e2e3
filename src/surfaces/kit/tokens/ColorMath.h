// What the look does with colours. All in sRGB.
//
// Pure functions, any thread.
#pragma once

#include <QColor>

#include <cstdint>

namespace vantle::colormath {

/// The opaque colour 0xRRGGBB.
[[nodiscard]] QColor fromHex(std::uint32_t hexRGB);

/// The colour moved towards white by `amount`, 0 to 1; its opacity stays.
[[nodiscard]] QColor glassLightened(const QColor& color, double amount);

/// The colour at an opacity, 0 to 1, whatever it had before.
[[nodiscard]] QColor withAlpha(QColor color, double alpha);

/// The contrast between two opaque colours, from 1 to 21.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// The colour of text on a fill: dark ink or white, whichever contrasts more.
[[nodiscard]] QColor inkOn(const QColor& fill);

} // namespace vantle::colormath
