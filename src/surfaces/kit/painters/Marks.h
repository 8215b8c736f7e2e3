// Small marks drawn for their pixel size.
#pragma once

#include <QString>

class QPainter;

namespace vantle::marks {

/// Draws the mark in white into a square of `side` device pixels at the origin. Horizontal and
/// vertical parts cover whole pixels, with the ink of a stroke of `stroke` device pixels. Returns
/// false for a name without a mark. Any thread.
bool draw(QPainter& painter, const QString& name, int side, double stroke);

} // namespace vantle::marks
