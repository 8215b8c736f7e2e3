// The painter of the hour wall's dots.
//
// A finished hour is a lit glass sphere, the current hour a slice, a future hour a socket. Pure
// drawing, any thread. Lengths in the painter's units; requires antialiasing.
#pragma once

#include <QColor>
#include <QPointF>

class QPainter;

namespace vantle::glassdotpainter {

/// The reach of a filled dot's glow, in radii.
inline constexpr double kGlowReach = 1.55;

/// Draws a lit sphere. Its glow extends beyond the radius.
void drawFilled(QPainter& painter, QPointF center, double radius, const QColor& color);

/// Draws a faint socket.
void drawEmpty(QPainter& painter, QPointF center, double radius);

/// Draws a disc with the rim of a sphere, filled clockwise from the top by `fraction`, 0 to 1.
/// Larger values count as 1.
void drawSlice(QPainter& painter, QPointF center, double radius, const QColor& color,
               double fraction);

} // namespace vantle::glassdotpainter
