// The values of a show that depend on time alone.
//
// t in seconds from the start of the show; opacities 0 to 1, lengths in points. Pure functions, any
// thread.
#pragma once

#include "ceremony/show/CeremonyVariant.h"

namespace vantle::ceremonytimeline {

/// Whether the show has ended: nothing is painted from here on.
[[nodiscard]] bool hasEnded(double t);

/// The opacity of the black plate behind everything, at most 0.52.
[[nodiscard]] double plateAlpha(CeremonyVariant variant, double t);
/// The same as a pixel's alpha, 0 to 255.
[[nodiscard]] int plateByte(CeremonyVariant variant, double t);

/// The time at which the title pill has arrived.
inline constexpr double titleStands = 2.0;

/// The opacity of the title pill.
[[nodiscard]] double titleOpacity(double t);

/// The title pill's height above its final place; negative is below.
[[nodiscard]] double titleRise(double t);

/// The brightness of the glow behind the title, 0 to 1.
[[nodiscard]] double titleGlow(double t);

[[nodiscard]] double captionOpacity(double t);

} // namespace vantle::ceremonytimeline
