// What each script paints over its dots: rings, streaks, a line or arms.
//
// Pure but for the canvas; t in seconds from the start of the show.
#pragma once

namespace vantle {

class CeremonyCanvas;
struct CeremonyGridModel;

namespace ceremonyoverlays {

/// The overlay of the model's script.
void draw(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t);

} // namespace ceremonyoverlays

} // namespace vantle
