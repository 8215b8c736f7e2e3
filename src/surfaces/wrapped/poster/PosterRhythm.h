// The calendar on the poster: tiles of a week, month or year.
//
// Pure drawing, any thread; needs an application object for the letters. Lengths in px of the
// poster.
#pragma once

#include "review/RhythmCard.h"

#include <QPointF>

class QPainter;

namespace vantle::posterrhythm {

/// Draws the calendar at `topLeft`, as wide as the poster's column; nothing without weeks.
void draw(QPainter& painter, QPointF topLeft, const RhythmPicture& picture);

} // namespace vantle::posterrhythm
