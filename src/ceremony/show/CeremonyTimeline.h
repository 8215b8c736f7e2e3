// What depends on nothing but the time within the show. Pure functions, any thread.
//
// t is in seconds from the start of the show; opacities are 0 to 1, lengths in points.
#pragma once

#include "ceremony/show/CeremonyVariant.h"

namespace vantle::ceremonytimeline {

/// Whether the show is over: nothing is painted from here on.
[[nodiscard]] bool hasEnded(double t);

/// Of the black plate behind everything, at most 0.52.
[[nodiscard]] double plateAlpha(CeremonyVariant variant, double t);
/// The same as the alpha of a pixel, 0 to 255.
[[nodiscard]] int plateByte(CeremonyVariant variant, double t);

/// The first moment at which the title pill has come in.
inline constexpr double titleStands = 2.0;

/// Of the title pill.
[[nodiscard]] double titleOpacity(double t);

/// How far the title pill stands above its place, upwards; negative is below.
[[nodiscard]] double titleRise(double t);

/// How bright the glow behind the title is, 0 to 1.
[[nodiscard]] double titleGlow(double t);

[[nodiscard]] double captionOpacity(double t);

} // namespace vantle::ceremonytimeline
