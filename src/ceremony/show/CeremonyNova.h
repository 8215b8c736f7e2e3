// The script with a burst: chargers gather in the centre, and half a second in they burst.
//
// Pure but for the canvas; t in seconds from the start of the show.
#pragma once

namespace vantle {

class CeremonyCanvas;
struct CeremonyGridModel;

namespace ceremonynova {

/// How far a ring may grow, in points: a little beyond the corners.
[[nodiscard]] double largestRadius(const CeremonyGridModel& model);

/// Until the detonation. Nothing else is painted then but the plate.
void drawCharge(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t);

/// From the detonation on: rings, sparks, glow and flash, over the dots.
void drawBurst(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t);

} // namespace ceremonynova

} // namespace vantle
