// Figures in columns: each digit in the middle of a cell of its own, so that a running clock does
// not tremble.
//
// Pure functions on the thread of the application's fonts. Lengths in px.
#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QString>

namespace vantle::tabular {

/// A line of text, shaped. Positions count from the line's left end and its baseline.
struct Line {
    QList<QGlyphRun> runs;
    double width = 0.0;
    double ascent = 0.0;
    double descent = 0.0;
};

/// The width of a digit's cell in a font, without tracking.
[[nodiscard]] double cellWidth(const QFont& font);

/// Shapes the text: digits in cells, everything else at its own width, tracking as the font says.
/// Text whose letters join into fewer or more glyphs is set as it comes, without cells.
[[nodiscard]] Line layOut(const QString& text, const QFont& font);

} // namespace vantle::tabular
