// The layout of a review's calendar in its window.
//
// Plain values and pure functions, any thread. Lengths in px. Time runs left to right and top to
// bottom in every locale, as on the poster.
#pragma once

#include "review/drawing/RhythmTilePainter.h"

#include <QRectF>
#include <QString>

#include <vector>

namespace vantle {

struct RhythmLayout {
    struct Spot {
        QPointF topLeft;
        DayTile tile;
    };
    struct Label {
        QString text;
        /// Top of its line: at the centre of a weekday letter, at the start of a month name.
        QPointF top;
        bool isCentered = false;
        bool isFuture = false;
    };
    static constexpr double labelLine = 15; ///< its height

    TileShape shape;
    std::vector<Spot> spots; ///< days only, in order
    std::vector<Label> labels;
    QSizeF size;

    /// Lays the picture out in a column of that width. Empty when the calendar has no days.
    [[nodiscard]] static RhythmLayout of(const RhythmPicture& picture, double width);

    /// Returns the index of the day at a point, or within half a gap of it; -1 for none.
    [[nodiscard]] int spotAt(QPointF point) const;
    [[nodiscard]] QRectF area(int spot) const;
};

} // namespace vantle
