// A review's calendar in its window: letters, names of months, tiles.
//
// Pure drawing, any thread; letters need an application object. Lengths in px.
#pragma once

#include "review/drawing/RhythmLayout.h"

#include <QColor>
#include <QFont>

#include <optional>

namespace vantle::rhythmpainter {

/// How letters and names of months are written.
struct Lettering {
    QFont font;
    QColor color;
    QColor futureColor; ///< of days to come
};

/// The seconds after which all tiles of a week have grown, one after the other.
[[nodiscard]] double growSeconds();

/// How much of the tile `index` of a week is there `seconds` after the page has come: 0 to 1.
[[nodiscard]] double grown(int index, double seconds);

/// The whole picture. With `growing`, that many seconds after its page has come; without, all tiles
/// are there.
void draw(QPainter& painter, const RhythmLayout& layout, const Lettering& lettering,
          std::optional<double> growing = std::nullopt);

} // namespace vantle::rhythmpainter
