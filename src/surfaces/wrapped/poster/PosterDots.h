// The field of dots in the poster's upper right corner.
//
// Pure drawing; needs nothing but the painter, with antialiasing on. Lengths in px of the poster.
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

/// The dots of a field over `area`, brightest in its upper right corner and fading to the lower
/// left: rows from the top, each from the right.
[[nodiscard]] std::vector<Dot> field(const QRectF& area);

/// Draws the field in these colours, which begin anew as often as needed. `scale` is the number of
/// device pixels in a px. Nothing without a colour.
void draw(QPainter& painter, const QRectF& area, const QList<QColor>& colors, double scale);

} // namespace vantle::posterdots
