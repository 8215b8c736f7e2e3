// The painter of a review's calendar: letters, month names, tiles.
//
// Pure drawing, any thread; letters need an application object. Lengths in px.
#pragma once

#include "review/drawing/RhythmLayout.h"

#include <QColor>
#include <QFont>

#include <optional>

namespace vantle::rhythmpainter {

/// The font and colours of letters and month names.
struct Lettering {
    QFont font;
    QColor color;
    QColor futureColor; ///< for days to come
};

/// Seconds until all tiles of a week have grown.
[[nodiscard]] double growSeconds();

/// The growth of tile `index` of a week after `seconds`: 0 to 1.
[[nodiscard]] double grown(int index, double seconds);

/// Draws the whole picture. `growing` is the time since the page appeared; without it all tiles are
/// full size.
void draw(QPainter& painter, const RhythmLayout& layout, const Lettering& lettering,
          std::optional<double> growing = std::nullopt);

} // namespace vantle::rhythmpainter
