// The calendar on the poster: a week, a month or a year of tiles in one picture.
//
// Pure drawing; needs an application object for the letters. Lengths in px of the poster.
#pragma once

#include "review/RhythmCard.h"

#include <QPointF>

class QPainter;

namespace vantle::posterrhythm {

/// Draws the picture with its upper left corner there, as wide as the poster's column. Without
/// weeks nothing is drawn.
void draw(QPainter& painter, QPointF topLeft, const RhythmPicture& picture);

} // namespace vantle::posterrhythm
