// Single lines of text on the poster.
//
// Keeps the font's unhinted widths, so that lines break and end alike at every scale. Requires an
// application object; one thread at a time. Lengths in px of the poster.
#pragma once

#include "surfaces/kit/tokens/Look.h"

#include <QBrush>
#include <QFont>
#include <QPointF>
#include <QString>
#include <QStringList>

class QPainter;

namespace vantle::postertext {

[[nodiscard]] QFont font(const look::TypeStep& step);

[[nodiscard]] double width(const QString& text, const QFont& font);

/// Returns the font in the largest size, up to its own, at which the text fits `room`; at least
/// half its size.
[[nodiscard]] QFont fitted(QFont font, const QString& text, double room);

/// Returns the text, elided to fit.
[[nodiscard]] QString elided(const QString& text, const QFont& font, double room);

/// Breaks the text into at most `most` lines of width `room`, between words where possible; elides
/// the last.
[[nodiscard]] QStringList broken(const QString& text, const QFont& font, double room, int most);

/// Draws in one colour or with a gradient.
void draw(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
          const QBrush& brush);

/// Draws the text so that it ends at the point.
void drawBefore(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
                const QBrush& brush);

/// Draws the text centred on the point.
void drawAround(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
                const QBrush& brush);

/// Returns the left bearing of the first glyph, which is visible in large type.
[[nodiscard]] double inkLeft(const QString& text, const QFont& font);

} // namespace vantle::postertext
