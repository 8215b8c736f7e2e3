// One day of a calendar, as a tile: the brighter, the more time.
//
// Pure drawing, any thread. Lengths in px. At 100 % and more tiles lie on whole device pixels,
// unless the painter is turned or sheared.
#pragma once

#include "review/RhythmCard.h"

#include <QPointF>
#include <QSizeF>

class QPainter;

namespace vantle {

struct TileShape {
    QSizeF size;
    double radius = 0;    ///< of the corners
    bool isSmall = false; ///< too small for a light edge, and for space inside of today's ring
};

namespace rhythmtile {

/// As far beyond its own edges a tile may reach: today's does.
inline constexpr double reach = 4;

/// A blank is not drawn.
void draw(QPainter& painter, QPointF topLeft, const TileShape& shape, const DayTile& tile);

} // namespace rhythmtile
} // namespace vantle
