// The painter of one calendar day: brighter means more time.
//
// Pure drawing, any thread. Lengths in px. At 100 % and more, tiles lie on whole device pixels
// unless the painter is rotated or sheared.
#pragma once

#include "review/RhythmCard.h"

#include <QPointF>
#include <QSizeF>

class QPainter;

namespace vantle {

struct TileShape {
    QSizeF size;
    double radius = 0;    ///< of the corners
    bool isSmall = false; ///< too small for a light edge; today's ring is brighter and closer
};

namespace rhythmtile {

/// The largest distance that a tile reaches beyond its edges: today's ring. Draw today last, its
/// ring overlaps other tiles.
inline constexpr double reach = 4;

/// Draws a tile; a blank draws nothing.
void draw(QPainter& painter, QPointF topLeft, const TileShape& shape, const DayTile& tile);

} // namespace rhythmtile
} // namespace vantle
