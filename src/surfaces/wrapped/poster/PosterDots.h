// The field of dots in the poster's upper right corner.
//
// Pure drawing, any thread; requires antialiasing. Lengths in px of the poster.
#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QRectF>

#include <vector>

class QPainter;

namespace vantle::posterdots {

inline constexpr double kPitch = 19;
inline constexpr double kRadius = 5.4;

struct Dot {
    QPointF center;
    double opacity = 0; ///< above 0, at most 1
};

/// Returns the dots over `area`, brightest in the upper right corner and fading to the lower left:
/// row by row, right to left.
[[nodiscard]] std::vector<Dot> field(const QRectF& area);

/// Draws the field, cycling through the colours. `scale` is in device pixels per px. Draws nothing
/// without a colour.
void draw(QPainter& painter, const QRectF& area, const QList<QColor>& colors, double scale);

} // namespace vantle::posterdots
