// The overlays of the scripts: rings, streaks, line, arms.
//
// Pure except for the canvas; t in seconds from the start of the show. Any thread.
#pragma once

namespace vantle {

class CeremonyCanvas;
struct CeremonyGridModel;

namespace ceremonyoverlays {

/// Draws the overlay of the model's script.
void draw(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t);

} // namespace ceremonyoverlays

} // namespace vantle
