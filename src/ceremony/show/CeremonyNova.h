// The burst of the `Nova` script.
//
// Chargers gather in the centre and burst after half a second. Pure except for the canvas; t in
// seconds from the start of the show. Any thread.
#pragma once

namespace vantle {

class CeremonyCanvas;
struct CeremonyGridModel;

namespace ceremonynova {

/// The largest radius of a ring in points: slightly beyond the corners.
[[nodiscard]] double largestRadius(const CeremonyGridModel& model);

/// Draws the time before the detonation, on the plate alone.
void drawCharge(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t);

/// Draws rings, sparks, glow and flash over the dots, from the detonation on.
void drawBurst(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t);

} // namespace ceremonynova

} // namespace vantle
