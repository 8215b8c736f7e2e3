// The dots of the hour wall: a finished hour is a lit sphere of glass, the current hour a slice, a
// future hour a socket.
//
// Pure drawing, any thread. Lengths are in the painter's units; its antialiasing must be on.
#pragma once

#include <QColor>
#include <QPointF>

class QPainter;

namespace vantle::glassdotpainter {

/// The glow around a filled dot ends at this many radii.
inline constexpr double kGlowReach = 1.55;

/// A lit sphere. Its glow reaches beyond the radius.
void drawFilled(QPainter& painter, QPointF center, double radius, const QColor& color);

/// A faint socket.
void drawEmpty(QPainter& painter, QPointF center, double radius);

/// A disc of which `fraction`, 0 to 1, is filled clockwise from the top. More counts as 1.
void drawSlice(QPainter& painter, QPointF center, double radius, const QColor& color,
               double fraction);

} // namespace vantle::glassdotpainter
