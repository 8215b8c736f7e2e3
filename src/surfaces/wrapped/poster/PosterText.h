// Text on the poster: single lines that stand at a baseline.
//
// Letters keep the widths that their typeface gives them, so that lines break and end at the same
// place whatever the scale. Needs an application object; one thread at a time. Lengths in px of the
// poster.
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

/// The typeface in the largest size up to its own in which the text is not wider than `room`; half
/// of that size where none is.
[[nodiscard]] QFont fitted(QFont font, const QString& text, double room);

/// The text, or as much of its beginning as has room, and an ellipsis.
[[nodiscard]] QString elided(const QString& text, const QFont& font, double room);

/// The text in lines of at most `room`, broken between words where there are any; the last of
/// `most` lines ends with an ellipsis if something is left.
[[nodiscard]] QStringList broken(const QString& text, const QFont& font, double room, int most);

/// Letters in one colour, or in the colours of a gradient.
void draw(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
          const QBrush& brush);

/// The same, ending at the point.
void drawBefore(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
                const QBrush& brush);

/// The same, with its middle at the point.
void drawAround(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
                const QBrush& brush);

/// How far right of its place the first letter shows, which large letters make visible.
[[nodiscard]] double inkLeft(const QString& text, const QFont& font);

} // namespace vantle::postertext
