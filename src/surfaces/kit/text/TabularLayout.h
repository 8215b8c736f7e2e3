// The layout of text with tabular figures.
//
// Each digit is centred in a cell, so that a running clock does not jitter. Pure functions, on the
// thread of the application's fonts. Lengths in px.
#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QString>

namespace vantle::tabular {

/// A shaped line. Positions are relative to its left end and baseline.
struct Line {
    QList<QGlyphRun> runs;
    double width = 0.0;
    double ascent = 0.0;
    double descent = 0.0;
};

/// Returns the width of a digit's cell, without tracking.
[[nodiscard]] double cellWidth(const QFont& font);

/// Shapes the text: digits in cells, the rest at its own width, with the font's tracking. A leading
/// digit starts at its own edge, so that a 1 is flush with the left margin; the width depends on
/// that digit and on the number of digits alone.
/// Text with ligatures or combining glyphs is set without cells.
[[nodiscard]] Line layOut(const QString& text, const QFont& font);

} // namespace vantle::tabular
