// The bright point that ends every show.
//
// It shoots from the screen's centre up to the place of the capsule. Pure except for the canvas; t
// in seconds from the start of the show, heights in points from the top. Any thread.
#pragma once

namespace vantle {

class CeremonyCanvas;

namespace ceremonyshootingpoint {

inline constexpr double restHeight = 26;

/// Returns the point's height; the centre until it starts.
[[nodiscard]] double headHeight(double centerY, double t);

/// Draws the point from 2.8 s on.
void draw(CeremonyCanvas& canvas, double centerY, double t);

} // namespace ceremonyshootingpoint

} // namespace vantle
