// The bright point that ends every show: it shoots from the centre of the screen upwards and comes
// to rest where the capsule shows.
//
// Pure but for the canvas; t in seconds from the start of the show, heights in points from the top.
#pragma once

namespace vantle {

class CeremonyCanvas;

namespace ceremonyshootingpoint {

inline constexpr double restHeight = 26;

/// Where the point is; at the centre until it starts.
[[nodiscard]] double headHeight(double centerY, double t);

/// Paints it from 2.8 on.
void draw(CeremonyCanvas& canvas, double centerY, double t);

} // namespace ceremonyshootingpoint

} // namespace vantle
