// Balanced line breaking for text that wraps.
//
// Pure functions on the thread of the application's fonts. Lengths in px.
#pragma once

#include <QFont>
#include <QString>

#include <limits>

namespace vantle {

struct Column {
    double width = 0;
    /// Width kept free at the end of the first line.
    double firstLineRoom = 0;
    /// Uses unhinted advances, as Text.QtRendering does.
    bool designMetrics = false;
    /// Text that needs more lines is elided, and keeps its column.
    int mostLines = std::numeric_limits<int>::max();
};

/// Returns the width to break lines at, at most that of the column, without adding a line. Two
/// lines get the smallest width that fits them, which makes them even. More lines keep the column,
/// unless the last line is a single word: then the largest width that avoids it. Elided text, and
/// text with a word wider than the column, keeps the column. Costs about ten layouts of the text.
[[nodiscard]] double balancedBreadth(const QString& text, const QFont& font, const Column& column);

} // namespace vantle
